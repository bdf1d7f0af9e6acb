// TPicture: which kind of graphic a file or form file holds, and keeping one of it.
#include "vcl/graphics/picture.h"

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/filer.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/text.h"

namespace vcl {

namespace {

template <class T>
std::unique_ptr<TGraphic> Make() {
  return std::make_unique<T>();
}

struct TKind {
  const char* Name;  ///< Of the class.
  const char* Extension;
  std::unique_ptr<TGraphic> (*Make)();
};
constexpr TKind Kinds[] = {
    {"TBitmap", ".bmp", &Make<TBitmap>},        {"TIcon", ".ico", &Make<TIcon>},
    {"TPngImage", ".png", &Make<TPngImage>},    {"TJpegImage", ".jpg", &Make<TJpegImage>},
    {"TJpegImage", ".jpeg", &Make<TJpegImage>}, {"TGifImage", ".gif", &Make<TGifImage>}};

/// An empty graphic of the kind with that text; raises EInvalidGraphic when there is none.
std::unique_ptr<TGraphic> MakeBy(const char* TKind::*what, const std::string& text) {
  for (const TKind& kind : Kinds)
    if (SameText(kind.*what, text)) return kind.Make();
  throw EInvalidGraphic(Concat("\"", text, "\" is no known kind of picture"));
}

}  // namespace

const TClass& TPicture::Class() {
  static const TClass info =
      Describe<TPicture, TPersistent>("vcl::TPicture", "vcl/graphics/graphics.h", {});
  return info;
}

void TPicture::Take(std::unique_ptr<TGraphic> graphic) {
  // The change is told once the former picture is no longer asked for.
  const auto former = std::exchange(FGraphic, std::move(graphic));
  if (FGraphic) FGraphic->OnChange = [this](TObject*) { OnChange(this); };
  OnChange(this);
}

void TPicture::Assign(const TPersistent* source) {
  if (const auto* picture = dynamic_cast<const TPicture*>(source)) source = picture->Graphic();
  if (!source) return Take(nullptr);
  if (!dynamic_cast<const TGraphic*>(source)) return TPersistent::Assign(source);
  auto copy = MakeBy(&TKind::Name, source->ClassName());
  copy->Assign(source);
  Take(std::move(copy));
}

TBitmap* TPicture::Bitmap() {
  if (!dynamic_cast<TBitmap*>(FGraphic.get())) Take(std::make_unique<TBitmap>());
  return static_cast<TBitmap*>(FGraphic.get());
}

TIcon* TPicture::Icon() {
  if (!dynamic_cast<TIcon*>(FGraphic.get())) Take(std::make_unique<TIcon>());
  return static_cast<TIcon*>(FGraphic.get());
}

void TPicture::LoadFromFile(const std::string& fileName) {
  auto graphic = MakeBy(&TKind::Extension, ExtractFileExt(fileName));
  graphic->LoadFromFile(fileName);
  Take(std::move(graphic));
}

void TPicture::SaveToFile(const std::string& fileName) const {
  if (FGraphic) FGraphic->SaveToFile(fileName);
}

void TPicture::DefineProperties(TFiler& filer) {
  filer.DefineBinaryProperty(
      "Data", [this](TStream& stream) { ReadData(stream); },
      [this](TStream& stream) { WriteData(stream); }, FGraphic && !FGraphic->Empty());
}

void TPicture::ReadData(TStream& stream) {
  if (stream.Size() == 0) return Assign(nullptr);  // A descendant's form has none.
  unsigned char length = 0;
  stream.ReadBuffer(&length, 1);
  std::string name(length, '\0');
  stream.ReadBuffer(name.data(), length);
  auto graphic = MakeBy(&TKind::Name, name);
  graphic->ReadData(stream);
  Take(std::move(graphic));
}

void TPicture::WriteData(TStream& stream) const {
  if (!FGraphic || FGraphic->Empty()) return;
  const std::string name = FGraphic->ClassName();
  const auto length = static_cast<unsigned char>(name.size());
  stream.WriteBuffer(&length, 1);
  stream.WriteText(name);
  FGraphic->WriteData(stream);
}

}  // namespace vcl
