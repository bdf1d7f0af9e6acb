// TQELPageSetupDialog: the system's page set-up as a component.
#pragma once

#include <memory>
#include <string>

#include "qel/dialogs/Qelhelpdialog.h"
#include "vcl/printing/printdialogs.h"

namespace qel {

/// Widths at the edges of a sheet, in hundredths of a millimetre. Setters take only values from 0
/// to 1,000,000.
class QEL_API TQELPageMargins : public vcl::TPersistent {
 public:
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  /// Copies another one's widths.
  void Assign(const vcl::TPersistent* source) override;

  int Left() const { return FWidths.Left; }
  /// At the left edge.
  void SetLeft(int width) { Set(FWidths.Left, width); }
  int Top() const { return FWidths.Top; }
  /// At the upper edge.
  void SetTop(int width) { Set(FWidths.Top, width); }
  int Right() const { return FWidths.Right; }
  /// At the right edge.
  void SetRight(int width) { Set(FWidths.Right, width); }
  int Bottom() const { return FWidths.Bottom; }
  /// At the lower edge.
  void SetBottom(int width) { Set(FWidths.Bottom, width); }
  const vcl::TRect& Widths() const { return FWidths; }

 private:
  static void Set(int& side, int width);

  vcl::TRect FWidths;
};

/// Lets the user choose paper, orientation and margins in the system's dialog (PageSetupDlgW). The
/// properties are what the dialog begins with and what was chosen, which the program's printer then
/// has, too; after a cancel, it is as it was. In the designer it always is.
class QEL_API TQELPageSetupDialog : public TQELHelpDialog {
 public:
  explicit TQELPageSetupDialog(vcl::TComponent* owner);
  ~TQELPageSetupDialog() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Plays Sound and shows the dialog; true when the user has agreed. False when he has cancelled;
  /// and without a dialog, as LastError then says, when there is no printer, one is printing, or
  /// the system refuses. Raises EInvalidOperation when the component's dialog is up already.
  bool Execute() override;
  /// Why the last Execute has shown nothing; empty when it has.
  const std::string& LastError() const { return FLastError; }

  int MarginLeft() const { return FDialog->MarginLeft(); }
  /// What stays free at the sheet's left edge, in hundredths of a millimetre. This and the next
  /// three take only values from 0 to 1,000,000.
  void SetMarginLeft(int margin);
  int MarginTop() const { return FDialog->MarginTop(); }
  /// What stays free at the sheet's upper edge.
  void SetMarginTop(int margin);
  int MarginRight() const { return FDialog->MarginRight(); }
  /// What stays free at the sheet's right edge.
  void SetMarginRight(int margin);
  int MarginBottom() const { return FDialog->MarginBottom(); }
  /// What stays free at the sheet's lower edge.
  void SetMarginBottom(int margin);
  /// The least margins that the user may choose. All 0: what the printer cannot print on.
  TQELPageMargins* MinMargins() const { return FMinMargins.get(); }
  vcl::TPrinterOrientation Orientation() const { return FOrientation; }
  /// How the sheet is turned.
  void SetOrientation(vcl::TPrinterOrientation orientation) { FOrientation = orientation; }
  int PaperWidth() const { return FPaperWidth; }
  /// The width of the upright sheet in hundredths of a millimetre; 0 for the printer's own. This
  /// and PaperHeight take only values from 0 to 300,000, and count where both are set and there is
  /// no PaperName.
  void SetPaperWidth(int width);
  int PaperHeight() const { return FPaperHeight; }
  /// The height of the upright sheet.
  void SetPaperHeight(int height);
  const std::string& PaperName() const { return FPaperName; }
  /// What the printer calls the sheet ("A4"); empty for the one of that size or the printer's own.
  void SetPaperName(const std::string& name) { FPaperName = name; }
  vcl::TPageSetupOptions Options() const { return FDialog->Options(); }
  /// What the user cannot change.
  void SetOptions(vcl::TPageSetupOptions options) { FDialog->SetOptions(options); }

 private:
  std::string Wanted(const std::string& settings) const;
  void Take(const std::string& settings);
  bool Ask();

  std::unique_ptr<vcl::TPageSetupDialog> FDialog;
  std::unique_ptr<TQELPageMargins> FMinMargins;
  vcl::TPrinterOrientation FOrientation = vcl::poPortrait;
  int FPaperWidth = 0;
  int FPaperHeight = 0;
  std::string FPaperName;
  std::string FLastError;
};

}  // namespace qel
