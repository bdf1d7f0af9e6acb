// TPrintDialog, TPrinterSetupDialog and TPageSetupDialog: the user chooses a printer, its settings
// and which pages.
#pragma once

#include "vcl/dialogs/commondialog.h"
#include "vcl/graphics/types.h"
#include "vcl/printing/printer.h"

namespace vcl {

/// What TPrintDialog offers.
enum TPrintDialogOption { pdPageNums, pdSelection, pdPrintToFile, pdDisablePrintToFile };
template <>
inline constexpr TEnumText EnumText<TPrintDialogOption>{
    "TPrintDialogOption", "pdPageNums pdSelection pdPrintToFile pdDisablePrintToFile",
    "TPrintDialogOptions"};
using TPrintDialogOptions = TSet<TPrintDialogOption>;

/// All pages, what is selected, or FromPage to ToPage.
enum TPrintRange { prAllPages, prSelection, prPageNums };
template <>
inline constexpr TEnumText EnumText<TPrintRange>{"TPrintRange",
                                                 "prAllPages prSelection prPageNums"};

/// The system's dialog before a document is printed (PrintDlgW), about Printer(), which gets what
/// the user chooses. The dialogs raise EPrinter when no printer is installed or one is printing.
class VCL_API TPrintDialog : public TCommonDialog {
 public:
  explicit TPrintDialog(TComponent* owner) : TCommonDialog(owner) {}
  ~TPrintDialog() override { AnnounceEnd(); }
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  bool Execute() override;

  bool Collate() const { return FCollate; }
  /// Whether several copies come copy by copy, each in the order of its pages.
  void SetCollate(bool collate) { FCollate = collate; }
  int Copies() const { return FCopies; }
  /// How many copies are offered, and then chosen. Raises EArgumentOutOfRangeException below 1 and
  /// above 9999.
  void SetCopies(int copies);
  int FromPage() const { return FFromPage; }
  /// The first page of the range that is offered and then chosen. This and the next three raise
  /// EArgumentOutOfRangeException below 0 and above 65534.
  void SetFromPage(int page);
  int ToPage() const { return FToPage; }
  /// The last page of the range that is offered and then chosen.
  void SetToPage(int page);
  int MinPage() const { return FMinPage; }
  /// The least page that the user may name.
  void SetMinPage(int page);
  int MaxPage() const { return FMaxPage; }
  /// The greatest page that the user may name.
  void SetMaxPage(int page);
  TPrintDialogOptions Options() const { return FOptions; }
  /// What the user may choose besides the printer.
  void SetOptions(TPrintDialogOptions options) { FOptions = options; }
  TPrintRange PrintRange() const { return FPrintRange; }
  /// Which pages are offered and then chosen.
  void SetPrintRange(TPrintRange range) { FPrintRange = range; }
  bool PrintToFile() const { return FPrintToFile; }
  /// Whether printing into a file is offered and then chosen.
  void SetPrintToFile(bool toFile) { FPrintToFile = toFile; }

 private:
  DWORD Flags() const;
  void Take(DWORD flags);

  bool FCollate = false;
  bool FPrintToFile = false;
  int FCopies = 1;
  int FFromPage = 0;
  int FToPage = 0;
  int FMinPage = 0;
  int FMaxPage = 0;
  TPrintRange FPrintRange = prAllPages;
  TPrintDialogOptions FOptions;
};

/// The system's dialog about the printer's settings alone, without printing (PrintDlgW).
class VCL_API TPrinterSetupDialog : public TCommonDialog {
 public:
  explicit TPrinterSetupDialog(TComponent* owner) : TCommonDialog(owner) {}
  ~TPrinterSetupDialog() override { AnnounceEnd(); }
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  bool Execute() override;
};

/// What of TPageSetupDialog cannot be changed.
enum TPageSetupOption { psDisableMargins, psDisableOrientation, psDisablePaper, psDisablePrinter };
template <>
inline constexpr TEnumText EnumText<TPageSetupOption>{
    "TPageSetupOption", "psDisableMargins psDisableOrientation psDisablePaper psDisablePrinter",
    "TPageSetupOptions"};
using TPageSetupOptions = TSet<TPageSetupOption>;

/// The system's dialog about the sheet and its margins (PageSetupDlgW). Printer() gets paper and
/// orientation. The margins are in hundredths of a millimetre from the sheet's edges.
class VCL_API TPageSetupDialog : public TCommonDialog {
 public:
  explicit TPageSetupDialog(TComponent* owner) : TCommonDialog(owner) {}
  ~TPageSetupDialog() override { AnnounceEnd(); }
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  bool Execute() override;

  int MarginLeft() const { return FMargins.Left; }
  /// What stays free at the sheet's left edge. This and the next three raise
  /// EArgumentOutOfRangeException for a negative one.
  void SetMarginLeft(int margin);
  int MarginTop() const { return FMargins.Top; }
  /// What stays free at the sheet's upper edge.
  void SetMarginTop(int margin);
  int MarginRight() const { return FMargins.Right; }
  /// What stays free at the sheet's right edge.
  void SetMarginRight(int margin);
  int MarginBottom() const { return FMargins.Bottom; }
  /// What stays free at the sheet's lower edge.
  void SetMarginBottom(int margin);
  /// All four at once.
  TRect Margins() const { return FMargins; }
  /// The least that the user may choose; all 0, as at first, for what the printer cannot print on.
  const TRect& MinMargins() const { return FMinMargins; }
  /// Raises EArgumentOutOfRangeException when one is negative.
  void SetMinMargins(const TRect& margins);
  /// The margins as pixels of the document, from the edges of the part that can be printed on.
  TRect TextArea(const TPrintDocument& document) const;
  TPageSetupOptions Options() const { return FOptions; }
  /// What the user cannot change.
  void SetOptions(TPageSetupOptions options) { FOptions = options; }

 private:
  static constexpr int UsualMargin = 2000;
  TRect FMargins{UsualMargin, UsualMargin, UsualMargin, UsualMargin};
  TRect FMinMargins;
  TPageSetupOptions FOptions;
};

}  // namespace vcl
