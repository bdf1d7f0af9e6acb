// TQELTipTricks: tips for the user, one at each start.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "qel/core/Qelbuttondetails.h"
#include "qel/core/Qeltstoredata.h"
#include "qel/dialogs/Qelformdialog.h"

namespace qel {

class TKeptValues;

/// Shows a tip, with buttons for the others and a box by which the user does without them. With
/// TipStore enabled, each start shows the next one, and what the user has chosen with the box is
/// kept, as "Form1.TipTricks1_Next" and "Form1.TipTricks1_ShowAtStart" of the owner's and the
/// component's own name. The designer neither reads nor writes the store. What the store refuses
/// tells its OnError.
class QEL_API TQELTipTricks : public TQELFormDialog {
 public:
  explicit TQELTipTricks(vcl::TComponent* owner);
  ~TQELTipTricks() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Shows the tips; true when it has. Without ShowAtStart, and without Force, nothing is shown,
  /// nor is it without tips, or where their file can't be read, as LastError then says.
  bool Execute() override;
  /// Why the last Execute has shown nothing; empty when it has, or when the user does without.
  const std::string& LastError() const { return FLastError; }

  vcl::TStrings* Tips() const { return FTips.get(); }
  /// The tips, with an empty line between two of them.
  void SetTips(const vcl::TStrings* tips) { FTips->Assign(tips); }
  const std::string& Filename() const { return FFilename; }
  /// A text file in UTF-8 with the tips, instead of Tips; read when the dialog is shown.
  void SetFilename(const std::string& fileName) { FFilename = fileName; }
  bool ShowAtStart() const { return FShowAtStart; }
  /// Whether Execute shows the tips; what the box says.
  void SetShowAtStart(bool show) { FShowAtStart = show; }
  bool Force() const { return FForce; }
  /// True has Execute show the tips whatever ShowAtStart says, as a menu item for them does.
  void SetForce(bool force) { FForce = force; }
  bool Random() const { return FRandom; }
  /// True shows the tips in an order that is another one each time.
  void SetRandom(bool random) { FRandom = random; }
  const std::string& CheckText() const { return FCheckText; }
  /// The text of the box; empty for no box.
  void SetCheckText(const std::string& text) { FCheckText = text; }
  /// Where the next tip and ShowAtStart are kept; not enabled at first.
  TQELDataStore* TipStore() const { return FTipStore.get(); }
  /// The button that shows the next tip; behind the last one comes the first.
  TQELButtonDetails* NextButton() const { return FNextButton.get(); }
  /// The button that shows the tip before; the first one comes behind the last.
  TQELButtonDetails* PreviousButton() const { return FPreviousButton.get(); }
  /// The button that closes the dialog.
  TQELButtonDetails* CloseButton() const { return FCloseButton.get(); }

 private:
  class TShown;
  TKeptValues Kept();
  std::vector<std::string> AllTips();
  int FirstTip(int count);
  void ReadShowAtStart();

  std::unique_ptr<vcl::TStringList> FTips;
  std::string FFilename;
  bool FShowAtStart = true;
  bool FForce = false;
  bool FRandom = false;
  std::string FCheckText = "&Show tips at start";
  std::unique_ptr<TQELDataStore> FTipStore;
  std::unique_ptr<TQELButtonDetails> FNextButton;
  std::unique_ptr<TQELButtonDetails> FPreviousButton;
  std::unique_ptr<TQELButtonDetails> FCloseButton;
  std::string FLastError;
};

}  // namespace qel
