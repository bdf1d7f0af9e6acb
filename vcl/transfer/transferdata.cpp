// TTransferData: text, HTML, pictures, files and components out of bytes.
#include "vcl/transfer/transferdata.h"

#include <algorithm>
#include <cstring>
#include <memory>

#include "vcl/forms/private/droppedfiles.h"
#include "vcl/graphics/codedimage.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/formfile.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/systemerrors.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"
#include "vcl/transfer/private/htmlformat.h"

namespace vcl {

static_assert(tfText == CF_UNICODETEXT && tfPicture == CF_DIB && tfFiles == CF_HDROP);

namespace {

constexpr struct {
  TTransferFormat Format;
  const char* Name;
} StandardFormats[] = {
    {CF_UNICODETEXT, "Text (Unicode)"},
    {CF_TEXT, "Text"},
    {CF_OEMTEXT, "Text (OEM)"},
    {CF_BITMAP, "Bitmap"},
    {CF_DIB, "Picture"},
    {CF_DIBV5, "Picture (V5)"},
    {CF_ENHMETAFILE, "Metafile"},
    {CF_HDROP, "Files"},
    {CF_LOCALE, "Language of the text"},
    {CF_PALETTE, "Palette"},
    {CF_WAVE, "Sound"},
    {CF_TIFF, "Picture (TIFF)"},
};

/// Up to the zero that ends it; the block may be longer than its text, and need not have one.
std::wstring WideText(const std::string& bytes) {
  std::wstring text(bytes.size() / sizeof(wchar_t), L'\0');
  std::memcpy(text.data(), bytes.data(), text.size() * sizeof(wchar_t));
  return text.substr(0, text.find(L'\0'));
}

std::wstring CodePageText(const std::string& bytes) {
  const std::string text = bytes.substr(0, bytes.find('\0'));
  const int size = static_cast<int>(text.size());
  std::wstring wide(text.size(), L'\0');
  wide.resize(static_cast<std::size_t>(
      ::MultiByteToWideChar(CP_ACP, 0, text.data(), size, wide.data(), size)));
  return wide;
}

// A file of the format BMP is the clipboard's record behind a head whose offset may be left out.
void ReadDib(const std::string& bytes, TBitmap& bitmap) {
  TStringStream file(std::string("BM\0\0\0\0\0\0\0\0\0\0\0\0", 14) + bytes);
  bitmap.LoadFromStream(file);
}

}  // namespace

TTransferFormat RegisterTransferFormat(const std::string& name) {
  const TTransferFormat format = ::RegisterClipboardFormatW(ToUtf16(name).c_str());
  if (!format) RaiseLastOSError<EOutOfResources>("The format of data \"", name, "\"");
  return format;
}

TTransferFormat HtmlTransferFormat() {
  static const TTransferFormat format = RegisterTransferFormat("HTML Format");
  return format;
}

TTransferFormat PngTransferFormat() {
  static const TTransferFormat format = RegisterTransferFormat("PNG");
  return format;
}

TTransferFormat ComponentTransferFormat() {
  static const TTransferFormat format = RegisterTransferFormat("Component (text form)");
  return format;
}

std::string TransferFormatName(TTransferFormat format) {
  for (const auto& [each, name] : StandardFormats) {
    if (each == format) return name;
  }
  wchar_t name[256];
  const int length = ::GetClipboardFormatNameW(format, name, static_cast<int>(std::size(name)));
  if (length > 0) return ToUtf8({name, static_cast<std::size_t>(length)});
  return Concat("Format ", std::to_string(format));
}

bool TTransferData::HasFormat(TTransferFormat format) const {
  const auto formats = Formats();
  return std::ranges::find(formats, format) != formats.end();
}

bool TTransferData::Has(TDataKind kind) const {
  switch (kind) {
    case dkText: return HasFormat(tfText) || HasFormat(CF_TEXT);
    case dkHtml: return HasFormat(HtmlTransferFormat());
    case dkPicture: return HasFormat(PngTransferFormat()) || HasFormat(tfPicture);
    case dkFiles: return HasFormat(tfFiles);
    case dkComponent: return HasFormat(ComponentTransferFormat());
  }
  return false;
}

bool TTransferData::Has(TDataKinds kinds) const {
  for (const TDataKind kind : {dkText, dkHtml, dkPicture, dkFiles, dkComponent}) {
    if (kinds.Has(kind) && Has(kind)) return true;
  }
  return false;
}

std::string TTransferData::AsText() const {
  std::string text;
  if (const auto wide = Bytes(tfText)) {
    text = ToUtf8(WideText(*wide));
  } else if (const auto narrow = Bytes(CF_TEXT)) {
    text = ToUtf8(CodePageText(*narrow));
  }
  std::erase(text, '\r');
  return text;
}

std::optional<THtmlPiece> TTransferData::AsHtml() const {
  const auto bytes = Bytes(HtmlTransferFormat());
  if (!bytes) return std::nullopt;
  return DecodeHtml(*bytes);
}

std::vector<std::string> TTransferData::Files() const {
  const auto bytes = Bytes(tfFiles);
  return bytes ? ReadDroppedFiles(*bytes).Names : std::vector<std::string>();
}

bool TTransferData::GetPicture(TPicture& picture) const {
  if (const auto png = Bytes(PngTransferFormat())) {
    TPngImage image;
    TStringStream file(*png);
    image.LoadFromStream(file);
    picture.SetGraphic(&image);
    return true;
  }
  const auto dib = Bytes(tfPicture);
  if (!dib) return false;
  TBitmap bitmap;
  ReadDib(*dib, bitmap);
  picture.SetGraphic(&bitmap);
  return true;
}

bool TTransferData::Read(TTransferFormat format, TStream& stream) const {
  const auto bytes = Bytes(format);
  if (bytes) stream.WriteText(*bytes);
  return bytes.has_value();
}

TComponent* TTransferData::GetComponent(TComponent* owner, TComponent* parent) const {
  const auto bytes = Bytes(ComponentTransferFormat());
  if (!bytes) return nullptr;
  TStringStream text(bytes->substr(0, bytes->find('\0')));
  TComponent* first = nullptr;
  ReadComponentsInto(text, owner, parent, [&first](TComponent* made) {
    if (!first) first = made;
  });
  return first;
}

}  // namespace vcl
