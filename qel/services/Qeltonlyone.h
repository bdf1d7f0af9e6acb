// TQELOnlyOne: keeps a program from running in more copies than allowed.
#pragma once

#include "qel/core/Qelcomponent.h"
#include "vcl/rtl/events.h"
#include "vcl/rtl/exceptions.h"

namespace qel {

namespace Qeltonlyone {

/// What a copy too many does: brings the other copy to the front, ends itself, both, or neither.
enum TQELAction { aRestoreAndExit, aRestore, aExit, aNone };

/// A program has a TQELOnlyOne already.
class QEL_API TQELDuplicateError : public vcl::Exception {
 public:
  using vcl::Exception::Exception;
  ~TQELDuplicateError() override;
};

}  // namespace Qeltonlyone

/// The guard, and the number of copies that were found, this one included.
using TQELOnExceeded = vcl::TEvent<vcl::TObject*, int>;

}  // namespace qel

template <>
inline constexpr vcl::TEnumText vcl::EnumText<qel::Qeltonlyone::TQELAction>{
    "TQELAction", "aRestoreAndExit aRestore aExit aNone"};

namespace qel {

/// Counts, when the form that it stands on has been read, the running copies of the program, and
/// acts when there are more than allowed. A copy is whatever has an application window with the
/// class and the caption (the application's Title) of this program's: give each program a title of
/// its own, and set it before the form is made.
///
/// A program has at most one guard, on its main form. In the designer it counts nothing.
class QEL_API TQELOnlyOne : public TQELComponent {
 public:
  /// Raises Qeltonlyone::TQELDuplicateError when there is another guard.
  explicit TQELOnlyOne(vcl::TComponent* owner);
  ~TQELOnlyOne() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  int Instances() const { return FInstances; }
  /// How many copies may run, this one included. With 0 every copy is one too many.
  void SetInstances(int instances) { FInstances = instances; }
  Qeltonlyone::TQELAction OnExceed() const { return FOnExceed; }
  /// What is done when there are too many copies.
  void SetOnExceed(Qeltonlyone::TQELAction onExceed) { FOnExceed = onExceed; }

  /// Counts the copies and, when there are too many, fires OnExceeded and does what OnExceed says
  /// then. Ending the program ends it here and now (vcl::Halt): no form is asked, none is told.
  void CheckPrevInstances();

  /// There are too many copies. The handler may still change OnExceed, or free the guard, which
  /// then does nothing more.
  TQELOnExceeded OnExceeded;

 protected:
  void Loaded() override;

 private:
  /// One that lives is all there may be.
  struct TInstance {
    TInstance();
    ~TInstance();
    TInstance(const TInstance&) = delete;
    TInstance& operator=(const TInstance&) = delete;
  };

  TInstance FInstance;
  int FInstances = 1;
  Qeltonlyone::TQELAction FOnExceed = Qeltonlyone::aRestoreAndExit;
};

}  // namespace qel
