// TQELTextFileView: the rows in sight, scrolling, painting, and the keys and the mouse.
#include <algorithm>
#include <optional>

#include "qel/shell/Qelttextfileview.h"
#include "qel/shell/private/textcontents.h"
#include "vcl/controls/messages.h"
#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/win32.h"

namespace qel {
namespace {

constexpr int Ticks = 1'000'000;  // Of the upright scroll bar: parts of the file.
constexpr int Gap = 6;            // Between numbers and text, at 96 dots per inch.

/// A context of the screen with the control's font, to measure with.
class TMeasure {
 public:
  explicit TMeasure(const vcl::TFont* font)
      : FScreen(::GetDC(nullptr)), FFormer(::SelectObject(FScreen, font->Handle())) {}
  ~TMeasure() {
    ::SelectObject(FScreen, FFormer);
    ::ReleaseDC(nullptr, FScreen);
  }
  TMeasure(const TMeasure&) = delete;
  TMeasure& operator=(const TMeasure&) = delete;

  int Height() const {
    TEXTMETRICW metrics{};
    ::GetTextMetricsW(FScreen, &metrics);
    return std::max(1, static_cast<int>(metrics.tmHeight));
  }
  int Digit() const { return Ends(L"0").back(); }
  /// Where each unit of the text ends, in pixels.
  std::vector<int> Ends(const std::wstring& text) const {
    std::vector<int> ends(text.size());
    SIZE size{};
    if (!text.empty()) {
      ::GetTextExtentExPointW(FScreen, text.c_str(), static_cast<int>(text.size()), 0, nullptr,
                              ends.data(), &size);
    }
    return ends;
  }

 private:
  HDC FScreen;
  HGDIOBJ FFormer;
};

}  // namespace

// ---- Rows ----

int TQELTextFileView::RowHeight() const { return TMeasure(Font()).Height(); }

int TQELTextFileView::TextLeft() const {
  const int gap = ScaledPixels(Gap);
  if (!FLineNumbers) return gap / 2;
  const auto digits = std::max<std::size_t>(4, std::to_string(LinesCounted()).size());
  return static_cast<int>(digits) * TMeasure(Font()).Digit() + 2 * gap;
}

int TQELTextFileView::PageRows() const { return std::max(1, ClientHeight() / RowHeight()); }

/// The rows of the line that begins there.
std::vector<TQELTextFileView::TRow> TQELTextFileView::RowsOf(TPlace line) const {
  const TLineBytes bytes = FContents->Text.LineAt(line);
  TShownLine shown = FContents->Text.Shown(bytes);
  if (!FWordWrap) return {{bytes.Begin, bytes.Next, 0, shown.Text, shown.Places}};
  const std::vector<int> ends = TMeasure(Font()).Ends(shown.Text);
  const int width = std::max(1, ClientWidth() - TextLeft());
  std::vector<TRow> rows;
  for (std::size_t from = 0; from < shown.Text.size() || rows.empty();) {
    const int left = from == 0 ? 0 : ends[from - 1];
    std::size_t to = from;
    while (to < ends.size() && ends[to] - left <= width) ++to;
    to = std::max(to, std::min(from + 1, ends.size()));
    if (to < ends.size()) {
      // Behind the last blank, where there is one.
      const std::size_t blank = shown.Text.rfind(L' ', to);
      if (blank != std::wstring::npos && blank > from && blank < to) to = blank + 1;
    }
    const auto places = shown.Places.begin();
    rows.push_back({bytes.Begin,
                    bytes.Next,
                    rows.size(),
                    shown.Text.substr(from, to - from),
                    {places + static_cast<std::ptrdiff_t>(from),
                     places + static_cast<std::ptrdiff_t>(to) + 1}});
    from = to;
    if (shown.Text.empty()) break;
  }
  return rows;
}

std::vector<TQELTextFileView::TRow> TQELTextFileView::RowsInSight() const {
  std::vector<TRow> rows;
  if (!FContents->Text.IsOpen()) return rows;
  const auto wanted = static_cast<std::size_t>(PageRows()) + 1;
  std::size_t skip = FTopRow;
  for (TPlace line = FTop; rows.size() < wanted;) {
    std::vector<TRow> more = RowsOf(line);
    const TPlace next = more.front().Next;
    for (TRow& each : more) {
      if (skip > 0 && each.Number < skip) continue;
      rows.push_back(std::move(each));
    }
    skip = 0;
    if (next == line || next >= FContents->Text.Size()) {
      // Behind a line break at the end there is an empty line.
      const TLineBytes last = FContents->Text.LineAt(line);
      if (next != line && last.End != last.Next) rows.push_back({next, next, 0, {}, {next}});
      break;
    }
    line = next;
  }
  if (rows.size() > wanted) rows.resize(wanted);
  return rows;
}

std::int64_t TQELTextFileView::NumberOf(TPlace line) const {
  if (line > FContents->Counter.CountedTo()) return 0;
  auto known = FContents->Counter.Before(line);
  while (known.Begin < line) {
    const TLineBytes bytes = FContents->Text.LineAt(known.Begin);
    if (bytes.Next == bytes.Begin) break;
    if (bytes.End != bytes.Next && bytes.Next <= line) ++known.Number;
    known.Begin = bytes.Next;
  }
  return static_cast<std::int64_t>(known.Number) + 1;
}

// ---- Scrolling ----

void TQELTextFileView::GoTo(TPlace line, std::size_t row) {
  FTop = line;
  FTopRow = row;
  UpdateScrollBars();
  Invalidate();
}

void TQELTextFileView::ScrollRows(std::int64_t rows) {
  TTextDocument& text = FContents->Text;
  if (!text.IsOpen()) return;
  TPlace line = FTop;
  auto row = static_cast<std::int64_t>(FTopRow);
  for (; rows < 0; ++rows) {
    if (row > 0) {
      --row;
    } else if (line > text.Begin()) {
      line = text.LineBefore(line);
      row = static_cast<std::int64_t>(RowsOf(line).size()) - 1;
    }
  }
  for (; rows > 0 && !EndInSight(); --rows) {
    const std::vector<TRow> now = RowsOf(line);
    if (row + 1 < static_cast<std::int64_t>(now.size())) {
      ++row;
    } else if (now.front().Next > line) {
      line = now.front().Next;
      row = 0;
    }
    FTop = line;
    FTopRow = static_cast<std::size_t>(row);
  }
  GoTo(line, static_cast<std::size_t>(row));
}

bool TQELTextFileView::EndInSight() const {
  if (!FContents->Text.IsOpen()) return true;
  const std::vector<TRow> rows = RowsInSight();
  if (rows.size() > static_cast<std::size_t>(PageRows())) return false;
  return rows.empty() || rows.back().Next >= FContents->Text.Size();
}

void TQELTextFileView::ScrollToEnd() {
  TTextDocument& text = FContents->Text;
  TPlace line = text.BeginOf(text.Size());
  auto row = static_cast<std::int64_t>(RowsOf(line).size()) - 1;
  for (int rest = PageRows() - 1; rest > 0 && (row > 0 || line > text.Begin()); --rest) {
    if (row > 0) {
      --row;
    } else {
      line = text.LineBefore(line);
      row = static_cast<std::int64_t>(RowsOf(line).size()) - 1;
    }
  }
  GoTo(line, static_cast<std::size_t>(row));
}

/// Scrolls so far that the place is seen, with some lines before it.
void TQELTextFileView::ShowPlace(TPlace place) {
  const auto holds = [place](const TRow& row) {
    return place >= row.Places.front() && place <= row.Places.back();
  };
  std::vector<TRow> rows = RowsInSight();
  if (rows.size() > static_cast<std::size_t>(PageRows())) rows.pop_back();
  const bool seen = std::ranges::any_of(rows, holds);
  if (!seen) {
    const TPlace line = FContents->Text.BeginOf(place);
    const std::vector<TRow> own = RowsOf(line);
    const auto at = std::ranges::find_if(own, holds);
    GoTo(line, at == own.end() ? 0 : at->Number);
    ScrollRows(-PageRows() / 3);
  }
  for (const TRow& row : RowsInSight()) {
    if (!holds(row) || FWordWrap) continue;
    const auto unit = std::ranges::lower_bound(row.Places, place) - row.Places.begin();
    const std::vector<int> ends = TMeasure(Font()).Ends(row.Text);
    const int x = unit == 0 ? 0 : ends[static_cast<std::size_t>(unit) - 1];
    const int width = ClientWidth() - TextLeft();
    if (x < FLeft || x > FLeft + width * 9 / 10) FLeft = std::max(0, x - width / 3);
    break;
  }
  UpdateScrollBars();
}

void TQELTextFileView::UpdateScrollBars() {
  if (!HandleAllocated()) return;
  const TTextDocument& text = FContents->Text;
  const auto size = static_cast<double>(std::max<std::uint64_t>(1, text.Size()));
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_ALL | SIF_DISABLENOSCROLL;
  const bool all = EndInSight() && FTop <= text.Begin() && FTopRow == 0;
  info.nMax = all ? 0 : Ticks;
  info.nPage = all ? 1 : Ticks / 50;
  info.nPos = static_cast<int>(static_cast<double>(FTop) / size * Ticks);
  if (!all && EndInSight()) info.nPos = Ticks;
  ::SetScrollInfo(Handle(), SB_VERT, &info, TRUE);
  const int width = std::max(1, ClientWidth() - TextLeft());
  info.nMax = FWordWrap ? 0 : std::max(FWidest, FLeft + width) - 1;
  info.nPage = static_cast<UINT>(width);
  info.nPos = FLeft;
  ::SetScrollInfo(Handle(), SB_HORZ, &info, TRUE);
}

void TQELTextFileView::Scroll(vcl::TMessage& message, int bar) {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_ALL;
  ::GetScrollInfo(Handle(), bar, &info);
  const WORD code = LOWORD(message.WParam);
  if (bar == SB_VERT) {
    switch (code) {
      case SB_LINEUP: return ScrollRows(-1);
      case SB_LINEDOWN: return ScrollRows(1);
      case SB_PAGEUP: return ScrollRows(-PageRows());
      case SB_PAGEDOWN: return ScrollRows(PageRows());
      case SB_TOP: return GoTo(FContents->Text.Begin(), 0);
      case SB_BOTTOM: return ScrollToEnd();
      case SB_THUMBTRACK: {
        constexpr int range = Ticks - Ticks / 50;
        const double part = static_cast<double>(info.nTrackPos) / range;
        if (part >= 1) return ScrollToEnd();
        const auto place = static_cast<TPlace>(part * static_cast<double>(FContents->Text.Size()));
        return GoTo(FContents->Text.BeginOf(place), 0);
      }
      default: return;
    }
  }
  const int column = TMeasure(Font()).Digit();
  switch (code) {
    case SB_LINELEFT: FLeft -= column; break;
    case SB_LINERIGHT: FLeft += column; break;
    case SB_PAGELEFT: FLeft -= static_cast<int>(info.nPage); break;
    case SB_PAGERIGHT: FLeft += static_cast<int>(info.nPage); break;
    case SB_THUMBTRACK: FLeft = info.nTrackPos; break;
    default: return;
  }
  FLeft = std::clamp(FLeft, 0, std::max(0, FWidest - static_cast<int>(info.nPage)));
  UpdateScrollBars();
  Invalidate();
}

// ---- Painting ----

void TQELTextFileView::Paint() {
  vcl::TCanvas* canvas = Canvas();
  canvas->Brush()->SetColor(Color());
  canvas->FillRect(ClientRect());
  canvas->SetFont(Font());
  int top = 0;
  const int former = FWidest;
  std::optional<TPlace> numbered;
  for (const TRow& row : RowsInSight()) {
    PaintRow(row, top);
    if (FLineNumbers && row.Number == 0 && numbered != row.Line) PaintNumber(row.Line, top);
    numbered = row.Line;
    top += RowHeight();
  }
  if (FWidest != former) UpdateScrollBars();
}

void TQELTextFileView::PaintRow(const TRow& row, int top) {
  const HDC dc = Canvas()->Handle();
  const std::vector<int> ends = TMeasure(Font()).Ends(row.Text);
  const int left = TextLeft();
  if (!ends.empty()) FWidest = std::max(FWidest, ends.back() + left);
  const auto x = [&](std::size_t unit) { return left - FLeft + (unit == 0 ? 0 : ends[unit - 1]); };
  const auto selected = [&](std::size_t unit) {
    return row.Places[unit] >= std::min(FAnchor, FCaret) &&
           row.Places[unit] < std::max(FAnchor, FCaret);
  };
  const vcl::TRect room(left, top, ClientWidth(), top + RowHeight());
  ::SetBkMode(dc, TRANSPARENT);
  // Runs of units that look alike, as far as they are in sight.
  for (std::size_t from = 0; from < row.Text.size();) {
    std::size_t to = from + 1;
    while (to < row.Text.size() && selected(to) == selected(from) && to - from < 2048) ++to;
    if (x(to) > room.Left && x(from) < room.Right) {
      const RECT part{std::max(x(from), room.Left), room.Top, std::min(x(to), room.Right),
                      room.Bottom};
      const bool marked = selected(from);
      const vcl::TColor color =
          FHighlightColor == vcl::clHighlight ? vcl::clHighlightText : Font()->Color();
      ::SetBkColor(dc, vcl::ColorToRGB(marked ? FHighlightColor : Color()));
      ::SetTextColor(dc, vcl::ColorToRGB(!Enabled() ? vcl::clGrayText
                                         : marked   ? color
                                                    : Font()->Color()));
      ::ExtTextOutW(dc, x(from), top, ETO_CLIPPED | (marked ? ETO_OPAQUE : 0U), &part,
                    row.Text.c_str() + from, static_cast<UINT>(to - from), nullptr);
    }
    from = to;
  }
}

void TQELTextFileView::PaintNumber(TPlace line, int top) {
  const std::int64_t number = NumberOf(line);
  // A piece of a long line has none.
  if (number == 0 || (line > FContents->Text.Begin() &&
                      FContents->Text.LineAt(FContents->Text.LineBefore(line)).End == line)) {
    return;
  }
  const std::string text = std::to_string(number);
  vcl::TCanvas* canvas = Canvas();
  canvas->Font()->SetColor(vcl::clGrayText);
  canvas->Brush()->SetStyle(vcl::bsClear);
  canvas->TextOut(TextLeft() - ScaledPixels(Gap) - canvas->TextWidth(text), top, text);
  canvas->Font()->SetColor(Font()->Color());
}

// ---- The window, the keys and the mouse ----

void TQELTextFileView::CreateParams(vcl::TCreateParams& params) {
  TQELCustomControl::CreateParams(params);
  params.Style |= WS_VSCROLL | WS_HSCROLL;
  params.ExStyle |= WS_EX_CLIENTEDGE;
}

void TQELTextFileView::CreateWnd() {
  TQELCustomControl::CreateWnd();
  UpdateScrollBars();
}

void TQELTextFileView::Resize() {
  TQELCustomControl::Resize();
  if (FWordWrap) FTopRow = 0;
  UpdateScrollBars();
  Invalidate();
}

void TQELTextFileView::Dispatch(vcl::TMessage& message) {
  switch (message.Msg) {
    case WM_VSCROLL:
    case WM_HSCROLL:
      if (message.LParam == 0)
        return Scroll(message, message.Msg == WM_VSCROLL ? SB_VERT : SB_HORZ);
      break;
    case WM_GETDLGCODE: message.Result = DLGC_WANTARROWS; return;
    case WM_CANCELMODE:
    case WM_CAPTURECHANGED: FSelecting = false; break;
    default: break;
  }
  TQELCustomControl::Dispatch(message);
}

bool TQELTextFileView::DoMouseWheel(vcl::TShiftState shift, int wheelDelta, vcl::TPoint mousePos) {
  const vcl::TWatch watch(this);
  if (TQELCustomControl::DoMouseWheel(shift, wheelDelta, mousePos) || watch.Gone()) return true;
  UINT lines = 3;
  ::SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
  const int rows = lines == WHEEL_PAGESCROLL ? PageRows() : static_cast<int>(lines);
  ScrollRows(-static_cast<std::int64_t>(wheelDelta) * rows / WHEEL_DELTA);
  return true;
}

void TQELTextFileView::KeyDown(std::uint16_t& key, vcl::TShiftState shift) {
  const vcl::TWatch watch(this);
  TQELCustomControl::KeyDown(key, shift);
  if (watch.Gone() || !FContents->Text.IsOpen()) return;
  const bool ctrl = shift.Has(vcl::ssCtrl);
  const auto horizontal = [this](WORD code) {
    vcl::TMessage message{};
    message.WParam = code;
    Scroll(message, SB_HORZ);
  };
  switch (key) {
    case VK_UP: ScrollRows(-1); break;
    case VK_DOWN: ScrollRows(1); break;
    case VK_PRIOR: ScrollRows(-PageRows()); break;
    case VK_NEXT: ScrollRows(PageRows()); break;
    case VK_LEFT: horizontal(SB_LINELEFT); break;
    case VK_RIGHT: horizontal(SB_LINERIGHT); break;
    case VK_HOME:
      FLeft = 0;
      GoTo(ctrl ? FContents->Text.Begin() : FTop, ctrl ? 0 : FTopRow);
      break;
    case VK_END:
      if (ctrl) ScrollToEnd();
      break;
    case VK_F3: FindNext(shift.Has(vcl::ssShift)); break;
    case 'A':
      if (ctrl) SelectAll();
      break;
    case 'C':
      if (ctrl) CopyToClipboard();
      break;
    default: return;
  }
  if (!watch.Gone()) key = 0;
}

TQELTextFileView::TPlace TQELTextFileView::PlaceAt(int x, int y) const {
  const std::vector<TRow> rows = RowsInSight();
  if (rows.empty()) return FContents->Text.Begin();
  const int index = std::clamp(y < 0 ? 0 : y / RowHeight(), 0, static_cast<int>(rows.size()) - 1);
  const TRow& row = rows[static_cast<std::size_t>(index)];
  const std::vector<int> ends = TMeasure(Font()).Ends(row.Text);
  const int inside = x - TextLeft() + FLeft;
  std::size_t unit = 0;
  // The nearer side of a character.
  while (unit < ends.size() && inside > (ends[unit] + (unit == 0 ? 0 : ends[unit - 1])) / 2) ++unit;
  return row.Places[unit];
}

void TQELTextFileView::MouseDown(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) {
  const vcl::TWatch watch(this);
  if (TabStop() && CanFocus() && button == vcl::mbLeft) SetFocus();
  if (watch.Gone()) return;
  TQELCustomControl::MouseDown(button, shift, x, y);
  if (watch.Gone() || button != vcl::mbLeft || !FContents->Text.IsOpen()) return;
  FCaret = PlaceAt(x, y);
  if (!shift.Has(vcl::ssShift)) FAnchor = FCaret;
  FSelecting = true;
  Invalidate();
}

void TQELTextFileView::MouseMove(vcl::TShiftState shift, int x, int y) {
  const vcl::TWatch watch(this);
  TQELCustomControl::MouseMove(shift, x, y);
  if (watch.Gone() || !FSelecting) return;
  if (y < 0) ScrollRows(-1);
  if (y > ClientHeight()) ScrollRows(1);
  FCaret = PlaceAt(x, y);
  Invalidate();
}

void TQELTextFileView::MouseUp(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) {
  FSelecting = false;
  TQELCustomControl::MouseUp(button, shift, x, y);
}

}  // namespace qel
