// TQELQueryAccess: a code that is asked for before something is done.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "qel/core/Qeltstoredata.h"
#include "qel/dialogs/Qelsecretdialog.h"

namespace qel {

class TKeptValues;

/// Asks for a code before something is done that not everybody is to do. It is an obstacle and no
/// protection: the program's data are as they were, who changes the program needs no code, and the
/// store is the user's own, who may delete it.
///
/// Of the code only a salted hash is known, to form files, too. After LockAfter wrong codes the
/// dialog takes none for LockTime seconds. With AccessStore enabled, wrong codes, the lock and what
/// is left of ValidFor last over the program's end, as "Form1.QueryAccess1_Access" of the owner's
/// and the component's own name. A clock that is set back does not end the lock, and ends ValidFor.
/// The designer neither reads nor writes the store. What the store refuses tells its OnError.
class QEL_API TQELQueryAccess : public TQELSecretDialog {
 public:
  explicit TQELQueryAccess(vcl::TComponent* owner);
  ~TQELQueryAccess() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Asks; true when the code was right, and, without a question, while ValidFor lasts. False when
  /// the user has cancelled; LastError says when it is locked then, or that there is no code, in
  /// which case nothing is shown.
  bool Execute() override;
  /// Has the code be another one, of which the hash is kept. Raises EQELSecretError when the system
  /// refuses to make one. The next Execute asks.
  void ChangeCode(std::string_view code);
  /// Ends ValidFor: the next Execute asks.
  void Revoke();
  /// For how many seconds no code is taken; 0 when one is.
  int LockedFor();

  const std::string& Code() const { return FCode; }
  /// The hash of the code, as QELHashedCode makes it; empty for no code. Refuses, silently, what is
  /// none, such as a code itself.
  void SetCode(const std::string& hash);
  int ValidFor() const { return FValidFor; }
  /// For how many seconds nobody is asked again after a right code. Refuses, silently, less than 0
  /// and more than a year.
  void SetValidFor(int seconds);
  int LockAfter() const { return FLockAfter; }
  /// How many wrong codes lock the dialog; 0 for any number. Refuses, silently, less than 0.
  void SetLockAfter(int failures);
  int LockTime() const { return FLockTime; }
  /// For how many seconds it is locked. Refuses, silently, less than 0 and more than a year.
  void SetLockTime(int seconds);
  /// Where wrong codes, the lock and what is left of ValidFor are kept; not enabled at first.
  TQELDataStore* AccessStore() const { return FAccessStore.get(); }
  const std::string& CodeLabel() const { return FCodeLabel; }
  /// What stands above the edit for the code.
  void SetCodeLabel(const std::string& text) { FCodeLabel = text; }
  const std::string& WrongText() const { return FWrongText; }
  /// What is said of a wrong code.
  void SetWrongText(const std::string& text) { FWrongText = text; }
  const std::string& LockText() const { return FLockText; }
  /// What is said while it is locked; "%d" stands for the seconds left.
  void SetLockText(const std::string& text) { FLockText = text; }

 private:
  class TShown;
  TKeptValues Kept();
  void ReadState();
  void WriteState();
  void TakeState(std::int64_t failures, std::int64_t lock, std::int64_t grant, std::int64_t passed);
  void Grant();
  void CountFailure();

  std::string FCode;
  int FValidFor = 0;
  int FLockAfter = 5;
  int FLockTime = 60;
  std::unique_ptr<TQELDataStore> FAccessStore;
  std::string FCodeLabel = "&Code:";
  std::string FWrongText = "The code is wrong.";
  std::string FLockText = "Locked for %d s.";
  /// The ends are times of the system's counter of milliseconds, which no clock changes.
  int FFailures = 0;
  std::uint64_t FLockEnd = 0;
  std::uint64_t FGrantEnd = 0;
};

}  // namespace qel
