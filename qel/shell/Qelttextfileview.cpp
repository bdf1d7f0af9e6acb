// TQELTextFileView: its table, its settings, the file and what happens to it.
#include "qel/shell/Qelttextfileview.h"

#include <algorithm>
#include <optional>

#include "qel/shell/private/textcontents.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/transfer/clipboard.h"

namespace qel {

const vcl::TClass& TQELTextFileView::Class() {
  using T = TQELTextFileView;
  using namespace vcl;
  static const TClass info = Describe<T, TQELCustomControl>(
      "qel::TQELTextFileView", "qel/shell/Qelttextfileview.h",
      {
          Inherit("About"),
          Inherit("Align"),
          Inherit("Color").Default(clWindow),
          Inherit("Enabled"),
          Property<&T::Encoding, &T::SetEncoding>("Encoding").Default(teAuto),
          Property<&T::Filename, &T::SetFilename>("Filename").Default(""),
          Property<&T::Follow, &T::SetFollow>("Follow").Default(false),
          Inherit("Font"),
          Property<&T::HighlightColor, &T::SetHighlightColor>("HighlightColor")
              .Default(clHighlight),
          Property<&T::LineNumbers, &T::SetLineNumbers>("LineNumbers").Default(true),
          Inherit("ParentColor").Default(false),
          Inherit("ParentFont").Default(false),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Inherit("ShowHint"),
          Inherit("TabOrder"),
          Inherit("TabStop").Default(true),
          Inherit("Visible"),
          Property<&T::WordWrap, &T::SetWordWrap>("WordWrap").Default(false),
          Inherit("OnClick"),
          Inherit("OnDblClick"),
          Inherit("OnDragDrop"),
          Inherit("OnDragOver"),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(MouseEvents),
          Inherit(WheelEvents),
      });
  return info;
}

TQELTextFileView::TQELTextFileView(vcl::TComponent* owner)
    : TQELCustomControl(owner), FContents(std::make_unique<TContents>([this] { Invalidate(); })) {
  SetBounds(0, 0, 320, 200);
  SetTabStop(true);
  SetParentColor(false);
  SetColor(vcl::clWindow);
  SetParentFont(false);
  Font()->SetName("Courier New");
  Font()->SetSize(10);
  FTimer.SetEnabled(false);
  FTimer.SetInterval(500);
  FTimer.OnTimer = [this](vcl::TObject*) { Look(); };
}

TQELTextFileView::~TQELTextFileView() { AnnounceEnd(); }

void TQELTextFileView::DescribeAccessible(vcl::TAccessibleInfo& info) const {
  TQELCustomControl::DescribeAccessible(info);
  info.Role = vcl::arText;
  info.Value.clear();
  if (!FContents->Text.IsOpen()) return;
  const TLineBytes line = FContents->Text.LineAt(FTop);
  info.Value = FContents->Text.Text(line.Begin, line.End);
}

// ---- The file ----

void TQELTextFileView::Open(const std::string& fileName) {
  static constexpr std::optional<TTextCoding> codings[] = {
      std::nullopt, TTextCoding::Utf8, TTextCoding::Utf16Little, TTextCoding::Utf16Big,
      TTextCoding::CodePage};
  FContents->Text.Open(fileName, codings[FEncoding]);
  FFilename = fileName;
  FLastError.clear();
  Begin();
}

void TQELTextFileView::Close() {
  FContents->Counter.Start({}, 0, 1, false);
  FContents->Text.Close();
  Begin();
}

/// Shows the beginning of what is open, and has its lines counted.
void TQELTextFileView::Begin() {
  TTextDocument& text = FContents->Text;
  FTop = FAnchor = FCaret = text.Begin();
  FTopRow = 0;
  FLeft = FWidest = 0;
  const bool big = text.Coding() == TTextCoding::Utf16Big;
  const bool two = big || text.Coding() == TTextCoding::Utf16Little;
  FContents->Counter.Start(text.IsOpen() ? FFilename : std::string(), text.Begin(), two ? 2 : 1,
                           big);
  FTimer.SetEnabled(FFollow && text.IsOpen());
  if (FFollow && text.IsOpen()) ScrollToEnd();
  UpdateScrollBars();
  Invalidate();
}

void TQELTextFileView::SetFilename(const std::string& fileName) {
  FFilename = fileName;
  FLastError.clear();
  if (Loading() || Designing()) return;
  if (fileName.empty()) return Close();
  try {
    Open(fileName);
  } catch (const vcl::EInOutError& error) {
    Close();
    FLastError = error.what();
  }
}

void TQELTextFileView::Loaded() {
  TQELCustomControl::Loaded();
  if (!FFilename.empty()) SetFilename(FFilename);
}

/// Whether the file has become longer, or another one.
void TQELTextFileView::Look() {
  TTextDocument& text = FContents->Text;
  const bool end = EndInSight();
  const std::uint64_t former = text.Refresh();
  if (text.Size() == former) return;
  if (text.Size() < former) return Begin();
  FContents->Counter.Continue();
  if (end) ScrollToEnd();
  UpdateScrollBars();
  Invalidate();
}

std::int64_t TQELTextFileView::FileSize() const {
  return static_cast<std::int64_t>(FContents->Text.Size());
}

std::int64_t TQELTextFileView::LinesCounted() const {
  if (!FContents->Text.IsOpen()) return 0;
  // What stands behind the last line break is a line, too.
  const auto breaks = static_cast<std::int64_t>(FContents->Counter.Lines());
  return AllCounted() ? breaks + 1 : breaks;
}

bool TQELTextFileView::AllCounted() const {
  return FContents->Counter.CountedTo() >= FContents->Text.Size();
}

// ---- Settings ----

void TQELTextFileView::SetEncoding(TQELTextFileViewEncoding encoding) {
  if (encoding == FEncoding || encoding < teAuto || encoding > teSystem) return;
  FEncoding = encoding;
  if (FContents->Text.IsOpen()) SetFilename(FFilename);
}

void TQELTextFileView::SetFollow(bool follow) {
  FFollow = follow;
  FTimer.SetEnabled(follow && FContents->Text.IsOpen());
  if (FTimer.Enabled()) Look();
}

void TQELTextFileView::SetHighlightColor(vcl::TColor color) {
  FHighlightColor = color;
  Invalidate();
}

void TQELTextFileView::SetLineNumbers(bool lineNumbers) {
  FLineNumbers = lineNumbers;
  UpdateScrollBars();
  Invalidate();
}

void TQELTextFileView::SetWordWrap(bool wordWrap) {
  if (wordWrap == FWordWrap) return;
  FWordWrap = wordWrap;
  FTopRow = 0;
  FLeft = 0;
  UpdateScrollBars();
  Invalidate();
}

// ---- Selecting and finding ----

std::int64_t TQELTextFileView::SelStart() const {
  return static_cast<std::int64_t>(std::min(FAnchor, FCaret));
}

std::int64_t TQELTextFileView::SelEnd() const {
  return static_cast<std::int64_t>(std::max(FAnchor, FCaret));
}

void TQELTextFileView::Select(std::int64_t from, std::int64_t to) {
  const auto within = [this](std::int64_t place) {
    const auto least = static_cast<std::int64_t>(FContents->Text.Begin());
    return static_cast<TPlace>(std::clamp(place, least, std::max(least, FileSize())));
  };
  FAnchor = within(from);
  FCaret = within(to);
  Invalidate();
}

void TQELTextFileView::SelectAll() { Select(0, FileSize()); }

std::string TQELTextFileView::SelText() const {
  constexpr std::int64_t most = 64 << 20;
  if (SelEnd() - SelStart() > most) {
    throw vcl::EOutOfResources("More than 64 megabytes of a text cannot be taken at once");
  }
  return FContents->Text.Text(static_cast<TPlace>(SelStart()), static_cast<TPlace>(SelEnd()));
}

void TQELTextFileView::CopyToClipboard() const {
  if (SelEnd() > SelStart()) vcl::Clipboard()->SetAsText(SelText());
}

bool TQELTextFileView::FindText(const std::string& text, bool matchCase, bool backwards) {
  FFound = text;
  FFoundCase = matchCase;
  return FindNext(backwards);
}

bool TQELTextFileView::FindNext(bool backwards) {
  TTextDocument& text = FContents->Text;
  if (FFound.empty() || !text.IsOpen()) return false;
  const auto from = static_cast<TPlace>(backwards ? SelStart() : SelEnd());
  const auto found = text.Find(FFound, FFoundCase, from, backwards);
  if (!found) return false;
  FAnchor = *found;
  FCaret = *found + text.LengthOf(FFound);
  ShowPlace(FAnchor);
  Invalidate();
  return true;
}

bool TQELTextFileView::GoToLine(std::int64_t line) {
  TTextDocument& text = FContents->Text;
  if (line < 1 || !text.IsOpen()) return false;
  if (line > LinesCounted()) {
    if (!AllCounted()) return false;
    line = LinesCounted();
  }
  auto known = FContents->Counter.BeforeNumber(static_cast<std::uint64_t>(line - 1));
  // A piece of a long line is none.
  while (known.Number < static_cast<std::uint64_t>(line - 1)) {
    const TLineBytes bytes = text.LineAt(known.Begin);
    if (bytes.Next == bytes.Begin) break;
    if (bytes.End != bytes.Next) ++known.Number;
    known.Begin = bytes.Next;
  }
  GoTo(known.Begin, 0);
  return true;
}

std::int64_t TQELTextFileView::TopLine() const {
  return FContents->Text.IsOpen() ? NumberOf(FTop) : 0;
}

}  // namespace qel
