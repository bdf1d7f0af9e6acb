// TDBImage: the picture in a field's bytes, and the clipboard's.
#include "vcl/dbctrls/dbimage.h"

#include <algorithm>
#include <cmath>

#include "vcl/controls/propertygroups.h"
#include "vcl/graphics/canvas.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"
#include "vcl/transfer/clipboard.h"

namespace vcl {
namespace {

using namespace std::string_view_literals;

template <class T>
std::unique_ptr<TGraphic> Make() {
  return std::make_unique<T>();
}

struct TKind {
  std::string_view Begins;
  std::unique_ptr<TGraphic> (*Make)();
};
constexpr TKind Kinds[] = {{"\x89PNG"sv, &Make<TPngImage>},
                           {"\xFF\xD8\xFF"sv, &Make<TJpegImage>},
                           {"GIF8"sv, &Make<TGifImage>},
                           {"BM"sv, &Make<TBitmap>},
                           {"\0\0\1\0"sv, &Make<TIcon>}};

/// The picture of a file with these bytes. Raises EInvalidGraphic when it is none.
std::unique_ptr<TGraphic> Decode(const std::string& bytes) {
  for (const TKind& kind : Kinds) {
    if (!std::string_view(bytes).starts_with(kind.Begins)) continue;
    auto graphic = kind.Make();
    TStringStream stream(bytes);
    graphic->LoadFromStream(stream);
    return graphic;
  }
  throw EInvalidGraphic("The field holds no picture of a known kind");
}

std::string BytesOf(const TGraphic& graphic) {
  TStringStream stream;
  graphic.SaveToStream(stream);
  return std::string(stream.DataString());
}

}  // namespace

const TClass& TDBImage::Class() {
  using T = TDBImage;
  static const TClass info = Describe<T, TCustomControl>(
      "vcl::TDBImage", "vcl/dbctrls/dbctrls.h",
      {
          Inherit("Align"),
          Property<&T::AutoDisplay, &T::SetAutoDisplay>("AutoDisplay").Default(true),
          Property<&T::BorderStyle, &T::SetBorderStyle>("BorderStyle").Default(bsSingle),
          Property<&T::Center, &T::SetCenter>("Center").Default(true),
          Inherit("Color"),
          Inherit("Ctl3D"),
          Property<&T::DataField, &T::SetDataField>("DataField").Default(""),
          Property<&T::DataSource, &T::SetDataSource>("DataSource"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Inherit("Font"),
          Inherit("ParentColor"),
          Inherit("ParentCtl3D"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Property<&T::Proportional, &T::SetProportional>("Proportional").Default(false),
          Property<&T::ReadOnly, &T::SetReadOnly>("ReadOnly").Default(false),
          Inherit("ShowHint"),
          Property<&T::Stretch, &T::SetStretch>("Stretch").Default(false),
          Inherit("TabOrder"),
          Inherit("TabStop").Default(true),
          Inherit("Visible"),
          Inherit("OnClick"),
          Inherit("OnDblClick"),
          Inherit(DragEvents),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(MouseEvents),
          Inherit(WheelEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

TDBImage::TDBImage(TComponent* owner)
    : TFieldEditor(owner), FPicture(std::make_unique<TPicture>()) {
  SetControlStyle(ControlStyle() - TControlStyle{csSetCaption});
  SetBounds(0, 0, 105, 105);
  SetTabStop(true);
  SetColor(clWindow);
  SetDoubleBuffered(true);
}

TDBImage::~TDBImage() { AnnounceEnd(); }

void TDBImage::Change(bool& field, bool value) {
  field = value;
  Invalidate();
}

void TDBImage::SetCenter(bool center) { Change(FCenter, center); }
void TDBImage::SetProportional(bool proportional) { Change(FProportional, proportional); }
void TDBImage::SetStretch(bool stretch) { Change(FStretch, stretch); }

void TDBImage::SetAutoDisplay(bool autoDisplay) {
  if (autoDisplay == FAutoDisplay) return;
  FAutoDisplay = autoDisplay;
  ShowNow();
}

void TDBImage::SetBorderStyle(TBorderStyle style) {
  if (style == FBorderStyle) return;
  FBorderStyle = style;
  RecreateWnd();
}

void TDBImage::CreateParams(TCreateParams& params) {
  TFieldEditor::CreateParams(params);
  if (FBorderStyle == bsSingle) AddSingleBorder(params);
}

// The field.

void TDBImage::LoadPicture() {
  if (FLoaded || !Field()) return;
  FLoaded = true;
  const TSetFor automatic(FAutoDisplay, true, this);
  ShowNow();
}

void TDBImage::ShowField() {
  FLoaded = FAutoDisplay || !Field() || (FLoaded && Link().Editing());
  FNote.clear();
  if (FLoaded) {
    ShowBytes(Field() ? Field()->AsString() : std::string());
  } else {
    FPicture->Assign(nullptr);
    FNote = Concat("(", Field()->DisplayLabel(), ")");
  }
  Invalidate();
}

/// A picture that cannot be shown must not keep the user from going to the record.
void TDBImage::ShowBytes(const std::string& bytes) {
  FPicture->Assign(nullptr);
  if (bytes.empty()) return;
  try {
    FPicture->Assign(Decode(bytes).get());
  } catch (const Exception& error) {
    FNote = NoteFor(bytes, error.Message());
  }
}

void TDBImage::WriteField() {
  const TGraphic* const graphic = FPicture->Graphic();
  if (!graphic || graphic->Empty()) return Field()->Clear();
  Field()->SetAsString(BytesOf(*graphic));
}

bool TDBImage::TakePicture(const TGraphic* graphic) {
  const TWatch watch(this);
  {
    const TSetFor holding(Holding(), true, this);
    if (!EditField()) return false;
  }
  FPicture->Assign(graphic);
  FNote.clear();
  FLoaded = true;
  Link().Modified();
  Invalidate();
  return !watch.Gone();
}

void TDBImage::SetPicture(const TPicture* picture) {
  if (TakePicture(picture ? picture->Graphic() : nullptr)) return;
  throw EDatabaseError(Concat("The picture of '", DataField(), "' cannot be changed"));
}

// The clipboard.

void TDBImage::CopyToClipboard() {
  if (FPicture->Graphic()) Clipboard()->SetPicture(*FPicture->Graphic());
}

void TDBImage::CutToClipboard() {
  if (!FPicture->Graphic() || !MayEditField()) return;
  CopyToClipboard();
  TakePicture(nullptr);
}

void TDBImage::PasteFromClipboard() {
  TPicture pasted;
  if (!Clipboard()->GetPicture(pasted)) return;
  TPngImage picture;
  picture.Assign(pasted.Graphic());
  TakePicture(&picture);
}

// Input.

void TDBImage::KeyDown(std::uint16_t& key, TShiftState shift) {
  const TWatch watch(this);
  TFieldEditor::KeyDown(key, shift);
  if (watch.Gone()) return;
  if (key == VK_INSERT && shift.Has(ssShift)) PasteFromClipboard();
  if (key == VK_INSERT && shift.Has(ssCtrl)) CopyToClipboard();
  if (key == VK_DELETE && shift.Has(ssShift)) return CutToClipboard();
  if (key == VK_DELETE && shift.Empty() && FPicture->Graphic()) TakePicture(nullptr);
}

void TDBImage::KeyPress(char32_t& key) {
  constexpr char32_t ctrlC = 3, ctrlV = 22, ctrlX = 24;
  if (key == detail::EnterCharacter && !FLoaded) {
    key = 0;
    return LoadPicture();
  }
  const TWatch watch(this);
  TFieldEditor::KeyPress(key);
  if (watch.Gone()) return;
  switch (key) {
    case ctrlC: return CopyToClipboard();
    case ctrlV: return PasteFromClipboard();
    case ctrlX: return CutToClipboard();
    default: return;
  }
}

void TDBImage::DblClick() {
  const TWatch watch(this);
  TFieldEditor::DblClick();
  if (!watch.Gone()) LoadPicture();
}

void TDBImage::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
  const TWatch watch(this);
  if (CanFocus() && !Focused()) SetFocus();
  if (!watch.Gone()) TFieldEditor::MouseDown(button, shift, x, y);
}

void TDBImage::Dispatch(TMessage& message) {
  switch (message.Msg) {
    case WM_COPY: return CopyToClipboard();
    case WM_CUT: return CutToClipboard();
    case WM_PASTE: return PasteFromClipboard();
    default: break;
  }
  const TWatch watch(this);
  TFieldEditor::Dispatch(message);
  const bool focus = message.Msg == WM_SETFOCUS || message.Msg == WM_KILLFOCUS;
  if (focus && !watch.Gone()) Invalidate();
}

// Look.

TRect TDBImage::PictureRect() const {
  int width = FPicture->Width();
  int height = FPicture->Height();
  const int mostWidth = ClientWidth();
  const int mostHeight = ClientHeight();
  if (width <= 0 || height <= 0) return {};
  const bool tooLarge = width > mostWidth || height > mostHeight;
  if (FProportional && (FStretch || tooLarge)) {
    const double scale = std::min(double{1} * mostWidth / width, double{1} * mostHeight / height);
    width = std::max(static_cast<int>(std::lround(width * scale)), 1);
    height = std::max(static_cast<int>(std::lround(height * scale)), 1);
  } else if (FStretch) {
    width = mostWidth;
    height = mostHeight;
  }
  const int left = FCenter ? (mostWidth - width) / 2 : 0;
  const int top = FCenter ? (mostHeight - height) / 2 : 0;
  return {left, top, left + width, top + height};
}

void TDBImage::Paint() {
  TCanvas& canvas = *Canvas();
  canvas.Brush()->SetColor(Color());
  canvas.FillRect(ClientRect());
  if (FPicture->Graphic()) FPicture->Graphic()->Draw(&canvas, PictureRect());
  if (!FNote.empty()) {
    canvas.SetFont(Font());
    const TSize size = canvas.TextExtent(FNote);
    canvas.TextRect(ClientRect(), std::max((ClientWidth() - size.cx) / 2, 2),
                    std::max((ClientHeight() - size.cy) / 2, 2), FNote);
  }
  if (Focused()) canvas.DrawFocusRect(ClientRect());
}

void TDBImage::DescribeAccessible(TAccessibleInfo& info) const {
  TFieldEditor::DescribeAccessible(info);
  info.Role = arGraphic;
  info.Value = FNote;
}

}  // namespace vcl
