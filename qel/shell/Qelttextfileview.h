// TQELTextFileView: a viewer of text files of any size.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "qel/core/Qelcontrols.h"
#include "vcl/rtl/systemmacros.h"
#include "vcl/stdctrls/timer.h"

namespace qel {

/// How a file's characters are written: as its mark or its beginning says; UTF-8; UTF-16, either
/// byte first; the system's code page.
enum TQELTextFileViewEncoding { teAuto, teUtf8, teUtf16, teUtf16BigFirst, teSystem };

/// Shows a text file of any size, of which only what is seen is read. Lines end with CR LF or LF;
/// those of more than 64 KB come in pieces. Line numbers appear as they are counted.
///
/// The arrows, Page Up and Down, Home, End and the wheel scroll, with Ctrl to the beginning and the
/// end; the mouse selects, Ctrl+A all; Ctrl+C copies; F3 finds again, with Shift backwards.
class QEL_API TQELTextFileView : public TQELCustomControl {
 public:
  explicit TQELTextFileView(vcl::TComponent* owner);
  ~TQELTextFileView() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(vcl::TAccessibleInfo& info) const override;

  /// Shows the file. Raises EInOutError; what was shown stays then.
  void Open(const std::string& fileName);
  /// Shows nothing, and lets go of the file.
  void Close();
  /// The file's size in bytes, as it is shown.
  std::int64_t FileSize() const;
  /// How many lines have been counted, and whether these are all.
  std::int64_t LinesCounted() const;
  bool AllCounted() const;
  /// Why Filename could not be shown; empty when it is, or there is none.
  const std::string& LastError() const { return FLastError; }

  /// Selects the text where it is found next, behind the selection or before it, and shows it;
  /// false when it is not there. Without `matchCase` the letters A to Z match in both cases.
  bool FindText(const std::string& text, bool matchCase = false, bool backwards = false);
  /// The same once more.
  bool FindNext(bool backwards = false);
  /// Shows that line, from 1, at the top, or the last one. A line that has not been counted yet is
  /// not gone to: false then.
  bool GoToLine(std::int64_t line);
  /// The number of the line at the top, from 1; 0 when it is not known yet.
  std::int64_t TopLine() const;

  /// The selected bytes of the file, from one to before the other.
  std::int64_t SelStart() const;
  std::int64_t SelEnd() const;
  void Select(std::int64_t from, std::int64_t to);
  void SelectAll();
  /// The selected text, with the file's line ends. Raises EOutOfResources for more than 64 MB.
  std::string SelText() const;
  void CopyToClipboard() const;

  TQELTextFileViewEncoding Encoding() const { return FEncoding; }
  /// How the file's characters are written.
  void SetEncoding(TQELTextFileViewEncoding encoding);
  const std::string& Filename() const { return FFilename; }
  /// The file; empty for none. One that cannot be read shows nothing, as LastError then says.
  void SetFilename(const std::string& fileName);
  bool Follow() const { return FFollow; }
  /// True: what is appended to the file is shown, and stays in sight where the end is in sight. A
  /// file that has become shorter is shown anew.
  void SetFollow(bool follow);
  vcl::TColor HighlightColor() const { return FHighlightColor; }
  /// What is behind the selection, and behind what was found.
  void SetHighlightColor(vcl::TColor color);
  bool LineNumbers() const { return FLineNumbers; }
  /// True: each line has its number before it.
  void SetLineNumbers(bool lineNumbers);
  bool WordWrap() const { return FWordWrap; }
  /// True: lines that are wider than the control take several rows.
  void SetWordWrap(bool wordWrap);

 protected:
  void CreateParams(vcl::TCreateParams& params) override;
  void CreateWnd() override;
  void Paint() override;
  void Dispatch(vcl::TMessage& message) override;
  void KeyDown(std::uint16_t& key, vcl::TShiftState shift) override;
  void MouseDown(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) override;
  void MouseMove(vcl::TShiftState shift, int x, int y) override;
  void MouseUp(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) override;
  bool DoMouseWheel(vcl::TShiftState shift, int wheelDelta, vcl::TPoint mousePos) override;
  void Resize() override;
  void Loaded() override;

 private:
  struct TContents;
  struct TRow;
  using TPlace = std::uint64_t;

  void Begin();
  void Look();
  // Rows (Qelttextfileview_rows.cpp).
  int RowHeight() const;
  int TextLeft() const;
  int PageRows() const;
  std::vector<TRow> RowsOf(TPlace line) const;
  std::vector<TRow> RowsInSight() const;
  void ScrollRows(std::int64_t rows);
  void ScrollToEnd();
  void ShowPlace(TPlace place);
  void GoTo(TPlace line, std::size_t row);
  bool EndInSight() const;
  void UpdateScrollBars();
  void PaintRow(const TRow& row, int top);
  void PaintNumber(TPlace line, int top);
  void Scroll(vcl::TMessage& message, int bar);
  TPlace PlaceAt(int x, int y) const;
  std::int64_t NumberOf(TPlace line) const;

  std::unique_ptr<TContents> FContents;
  vcl::TTimer FTimer{nullptr};
  std::string FFilename, FLastError, FFound;
  bool FFoundCase = false;
  TQELTextFileViewEncoding FEncoding = teAuto;
  bool FFollow = false;
  vcl::TColor FHighlightColor = vcl::clHighlight;
  bool FLineNumbers = true;
  bool FWordWrap = false;
  TPlace FTop = 0;          // Where the line at the top begins,
  std::size_t FTopRow = 0;  // and which of its rows is there.
  int FLeft = 0;            // In pixels.
  mutable int FWidest = 0;
  TPlace FAnchor = 0, FCaret = 0;
  bool FSelecting = false;
};

}  // namespace qel

template <>
inline constexpr vcl::TEnumText vcl::EnumText<qel::TQELTextFileViewEncoding>{
    "TQELTextFileViewEncoding", "teAuto teUtf8 teUtf16 teUtf16BigFirst teSystem"};
