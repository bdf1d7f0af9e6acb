// TQELStartup: whether the program starts with the user's session.
#pragma once

#include <string>

#include "qel/core/Qelcomponent.h"

namespace qel {

/// With whose sessions.
enum TQELStartupScope {
  ssUser,    ///< That of the user.
  ssMachine  ///< Those of all users, which not every program may change.
};

/// Has the system start the program, or another command, when a session begins, by an entry in its
/// registry. In the designer it changes nothing.
class QEL_API TQELStartup : public TQELComponent {
 public:
  explicit TQELStartup(vcl::TComponent* owner);
  ~TQELStartup() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Whether the system has the entry, with this command; read each time.
  bool Active() const;
  /// Installs or removes.
  void SetActive(bool active);
  /// Makes the entry, or replaces what it says. False when the system refuses, as LastError says.
  bool Install();
  /// Takes the entry out, be it one for once or for always; true when there is none, too.
  bool Remove();
  /// Why the last Install or Remove was refused; empty when it was not.
  const std::string& LastError() const { return FLastError; }
  /// What is started: Command, or this program in quotes.
  std::string Line() const;

  const std::string& Command() const { return FCommand; }
  /// What is started, with its parameters; empty for this program.
  void SetCommand(const std::string& command) { FCommand = command; }
  const std::string& EntryName() const { return FEntryName; }
  /// What the entry is called, which no other program's may be; empty for the name of the program's
  /// file.
  void SetEntryName(const std::string& name) { FEntryName = name; }
  bool Once() const { return FOnce; }
  /// True: only when the next session begins.
  void SetOnce(bool once) { FOnce = once; }
  TQELStartupScope Scope() const { return FScope; }
  /// With whose sessions.
  void SetScope(TQELStartupScope scope) { FScope = scope; }

 private:
  std::string Entry() const;
  void Erase(bool once) const;
  template <class Change>
  bool Try(Change change);

  std::string FCommand;
  std::string FEntryName;
  bool FOnce = false;
  TQELStartupScope FScope = ssUser;
  std::string FLastError;
};

}  // namespace qel

template <>
inline constexpr vcl::TEnumText vcl::EnumText<qel::TQELStartupScope>{"TQELStartupScope",
                                                                     "ssUser ssMachine"};
