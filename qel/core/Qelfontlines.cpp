// TQELFontLines: which typefaces there are, and what their lines look like.
#include "qel/core/Qelfontlines.h"

#include <algorithm>

#include "vcl/controls/messagewindow.h"
#include "vcl/graphics/canvas.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TRect;

namespace {

// What a line's mark says: its kind, whether its letters can't be read, and whether it is the last
// of those that were used last.
constexpr int KindBits = 3;
constexpr int SymbolBit = 4;
constexpr int LastRecentBit = 8;

TQELFontKind KindOf(DWORD type) {
  if (type & TRUETYPE_FONTTYPE) return fkTrueType;
  return type & RASTER_FONTTYPE ? fkRaster : fkVector;
}

int CALLBACK AddFace(const LOGFONTW* font, const TEXTMETRICW*, DWORD type, LPARAM faces) {
  if (font->lfFaceName[0] == L'@') return 1;
  auto& all = *reinterpret_cast<std::vector<TQELFontFace>*>(faces);
  all.push_back({vcl::ToUtf8(font->lfFaceName), KindOf(type),
                 (font->lfPitchAndFamily & 3) == FIXED_PITCH, font->lfCharSet == SYMBOL_CHARSET});
  return 1;
}

}  // namespace

std::vector<TQELFontFace> QELFontFaces(vcl::TFontCharset charset) {
  std::vector<TQELFontFace> faces;
  const vcl::TWindowDC screen(nullptr);
  LOGFONTW wanted{};
  wanted.lfCharSet = static_cast<BYTE>(charset);
  ::EnumFontFamiliesExW(screen.Get(), &wanted, &AddFace, reinterpret_cast<LPARAM>(&faces), 0);
  std::ranges::stable_sort(faces, [](const TQELFontFace& a, const TQELFontFace& b) {
    return vcl::AnsiCompareText(a.Name, b.Name) < 0;
  });
  // A face comes once for each of its sets of characters.
  const auto same = [](const TQELFontFace& a, const TQELFontFace& b) {
    return vcl::AnsiSameText(a.Name, b.Name);
  };
  faces.erase(std::unique(faces.begin(), faces.end(), same), faces.end());
  return faces;
}

/// Hears of the system's typefaces, for all watches, while there is one.
struct TFontNews {
  std::vector<TQELFontWatch*> Watches;
  HWND Window = nullptr;

  static TFontNews& Shared() {
    static TFontNews shared;
    return shared;
  }
  void Add(TQELFontWatch* watch) {
    Watches.push_back(watch);
    if (Window) return;
    Window = vcl::AllocateHWnd(vcl::TWndMethod([this](vcl::TMessage& message) { Take(message); }));
  }
  void Remove(TQELFontWatch* watch) {
    std::erase(Watches, watch);
    if (Watches.empty()) vcl::DeallocateHWnd(std::exchange(Window, nullptr));
  }
  void Take(vcl::TMessage& message) {
    message.Result = ::DefWindowProcW(Window, message.Msg, message.WParam, message.LParam);
    if (message.Msg != WM_FONTCHANGE) return;
    // What one of them does may end others.
    const std::vector<TQELFontWatch*> told = Watches;
    for (TQELFontWatch* watch : told) {
      if (std::ranges::find(Watches, watch) != Watches.end()) watch->FChanged();
    }
  }
};

TQELFontWatch::TQELFontWatch(std::function<void()> changed) : FChanged(std::move(changed)) {
  TFontNews::Shared().Add(this);
}

TQELFontWatch::~TQELFontWatch() { TFontNews::Shared().Remove(this); }

TQELFontLines::TQELFontLines(vcl::TCustomListControl& list)
    : FList(list), FWatch([this] { Fill(); }) {}

void TQELFontLines::SetPreview(bool preview) {
  FPreview = preview;
  FList.Invalidate();
}

void TQELFontLines::SetRecentCount(int count) {
  if (count >= 0) Change(FRecentCount, count);
}

std::string TQELFontLines::FontName() const {
  const int index = FList.ItemIndex();
  return index < 0 ? FWanted : FList.Items()->Strings(index);
}

void TQELFontLines::SetFontName(const std::string& name) {
  FWanted = name;
  Select(name);
}

void TQELFontLines::Select(const std::string& name) {
  FList.SetItemIndex(FList.Items()->IndexOf(name));
}

void TQELFontLines::Use() {
  const std::string name = FontName();
  const bool first = !FRecent.empty() && FRecent.front() == name;
  if (FRecentCount == 0 || first || FList.ItemIndex() < 0) return;
  std::erase(FRecent, name);
  FRecent.insert(FRecent.begin(), name);
  Fill();
}

bool TQELFontLines::Shown(const TQELFontFace& face) const {
  return FKinds.Has(face.Kind) && (face.Fixed || !FFixedOnly);
}

void TQELFontLines::AddLine(const TQELFontFace& face, bool last) {
  const int mark = face.Kind | (face.Symbol ? SymbolBit : 0) | (last ? LastRecentBit : 0);
  SetMark(FList, FList.Items()->Add(face.Name), mark);
}

void TQELFontLines::Fill() {
  const std::string selected = FontName();
  if (FRecent.size() > static_cast<std::size_t>(FRecentCount)) {
    FRecent.resize(static_cast<std::size_t>(FRecentCount));
  }
  std::vector<TQELFontFace> faces = QELFontFaces(FCharset);
  std::erase_if(faces, [this](const TQELFontFace& face) { return !Shown(face); });
  std::vector<const TQELFontFace*> recent;
  for (const std::string& name : FRecent) {
    const auto found = std::ranges::find(faces, name, &TQELFontFace::Name);
    if (found != faces.end()) recent.push_back(&*found);
  }
  {
    const vcl::TUpdating updating(*FList.Items(), &FList);
    FList.Items()->Clear();
    for (const TQELFontFace* face : recent) AddLine(*face, face == recent.back());
    for (const TQELFontFace& face : faces) AddLine(face, false);
  }
  SetFontName(selected);
}

// Drawing.

/// Two letters for outlines, a letter of dots, a letter of strokes.
void TQELFontLines::DrawKind(int mark, const TRect& rect) const {
  vcl::TCanvas& canvas = *FList.Canvas();
  const int unit = std::max(rect.Width() / 12, 1);
  const auto letter = [&](int left, int top, int width, vcl::TColor color) {
    canvas.Pen()->SetColor(color);
    for (int i = 0; i < unit; ++i) {
      canvas.MoveTo(rect.Left + left * unit, rect.Top + top * unit + i);
      canvas.LineTo(rect.Left + (left + width) * unit, rect.Top + top * unit + i);
      canvas.MoveTo(rect.Left + (left + width / 2) * unit + i, rect.Top + top * unit);
      canvas.LineTo(rect.Left + (left + width / 2) * unit + i, rect.Top + (top + 7) * unit);
    }
  };
  const auto dot = [&](int column, int row) {
    const vcl::TColor back = canvas.Brush()->Color();
    canvas.Brush()->SetColor(vcl::clMaroon);
    canvas.FillRect(vcl::Bounds(rect.Left + (2 + 2 * column) * unit,
                                rect.Top + (1 + 2 * row) * unit, unit, unit));
    canvas.Brush()->SetColor(back);
  };
  switch (mark & KindBits) {
    case fkTrueType:
      letter(0, 1, 7, vcl::clGray);
      letter(4, 3, 7, vcl::clBlue);
      break;
    case fkRaster:
      for (int i = 0; i < 5; ++i) dot(i, 0);
      for (int i = 1; i < 5; ++i) dot(2, i);
      break;
    default: letter(2, 2, 7, vcl::clGreen); break;
  }
}

void TQELFontLines::Draw(vcl::TCustomListControl& list, int index, const TRect& rect,
                         vcl::TOwnerDrawState state) {
  const std::string name = list.Items()->Strings(index);
  const int mark = Mark(list, index);
  const bool readable = (mark & SymbolBit) == 0;
  vcl::TCanvas& canvas = *list.Canvas();
  const int size = list.ScaledPixels(12);
  const int margin = list.ScaledPixels(2);
  DrawKind(mark,
           vcl::Bounds(rect.Left + margin, rect.Top + (rect.Height() - size) / 2, size, size));
  if (FPreview && readable) canvas.Font()->SetName(name);
  const int indentation = size + 3 * margin;
  DrawLineText(list, rect, indentation, name);
  // What is not written in its own face shows a few of its characters.
  if (FPreview && !readable) {
    const int width = indentation + canvas.TextWidth(name) + 4 * margin;
    canvas.Font()->SetName(name);
    canvas.Font()->SetCharset(vcl::TFontCharset(SYMBOL_CHARSET));
    DrawLineText(list, rect, width, "ABC");
  }
  if ((mark & LastRecentBit) == 0 || state.Has(vcl::odComboBoxEdit)) return;
  canvas.Pen()->SetColor(vcl::clBtnShadow);
  canvas.MoveTo(rect.Left, rect.Bottom - 1);
  canvas.LineTo(rect.Right, rect.Bottom - 1);
}

}  // namespace qel
