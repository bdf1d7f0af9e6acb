// TQELActionComponent: one action on the system, which may fail.
#pragma once

#include <string>

#include "qel/core/Qelcomponent.h"
#include "vcl/rtl/exceptions.h"

namespace qel {

/// The system has refused something: the text says what, with the system's words.
class QEL_API EQELSystemError : public vcl::Exception {
 public:
  /// `what` is what could not be done, "The file 'x' cannot be deleted" for instance.
  EQELSystemError(const std::string& what, int code);
  ~EQELSystemError() override;
  /// The system's number.
  int Code() const { return FCode; }

 private:
  int FCode;
};

/// Base of components whose Execute does something outside the program and says why it was not
/// done. In the designer it tells in a message box what it would do, and does nothing.
class QEL_API TQELActionComponent : public TQELExecComponent {
 public:
  using TQELExecComponent::TQELExecComponent;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Does it. False when it was not done, as LastError says, or the user did not want it.
  bool Execute() override;
  /// Why the last Execute was not done, or what of it; empty when it was, or the user did not want
  /// it.
  const std::string& LastError() const { return FLastError; }
  /// The system's number for that; 0 without one.
  int LastErrorCode() const { return FLastErrorCode; }

 protected:
  /// Does it; false when the user does not want it. Raises vcl::Exception when it cannot be done.
  virtual bool DoExecute() = 0;
  /// What it would do, as a sentence for the developer.
  virtual std::string DesignText() const = 0;
  /// Keeps something that went wrong though the action was done.
  void Note(const std::string& error) { SetLastError(error, 0); }
  /// Runs something else that may fail in the same way, and keeps why it did. False, too, when the
  /// component has been freed meanwhile.
  template <class Action>
  bool Try(Action action) {
    const vcl::TWatch watch(this);
    SetLastError({}, 0);
    try {
      return action() && !watch.Gone();
    } catch (const EQELSystemError& error) {
      if (!watch.Gone()) SetLastError(error.what(), error.Code());
    } catch (const vcl::EAbort&) {
      return false;
    } catch (const vcl::Exception& error) {
      if (!watch.Gone()) SetLastError(error.what(), 0);
    }
    return false;
  }

 private:
  void SetLastError(const std::string& text, int code);

  std::string FLastError;
  int FLastErrorCode = 0;
};

}  // namespace qel
