// TDataObject: the bytes of each kind of data.
#include "vcl/transfer/dataobject.h"

#include <algorithm>

#include "vcl/forms/private/droppedfiles.h"
#include "vcl/graphics/codedimage.h"
#include "vcl/graphics/png.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/formfile.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/transfer/private/comdata.h"
#include "vcl/transfer/private/htmlformat.h"

namespace vcl {

namespace {

constexpr std::size_t FileHeadSize = 14;  // Of a BMP file; the clipboard's record has none.

std::string CrLf(const std::string& text) {
  std::string lines;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\n' && (i == 0 || text[i - 1] != '\r')) lines += '\r';
    lines += text[i];
  }
  return lines;
}

std::string PngOf(const TGraphic& picture, const TBitmap& seen) {
  TStringStream file;
  dynamic_cast<const TPngImage*>(&picture) ? picture.SaveToStream(file) : SavePng(seen, file);
  return file.DataString();
}

}  // namespace

std::vector<TTransferFormat> TDataObject::Formats() const {
  std::vector<TTransferFormat> formats;
  for (const auto& entry : FEntries) formats.push_back(entry.first);
  return formats;
}

std::optional<std::string> TDataObject::Bytes(TTransferFormat format) const {
  const auto found =
      std::ranges::find(FEntries, format, [](const auto& each) { return each.first; });
  if (found == FEntries.end()) return std::nullopt;
  return found->second;
}

void TDataObject::SetBytes(TTransferFormat format, std::string bytes) {
  const auto found =
      std::ranges::find(FEntries, format, [](const auto& each) { return each.first; });
  if (found == FEntries.end()) {
    FEntries.emplace_back(format, std::move(bytes));
  } else {
    found->second = std::move(bytes);
  }
}

void TDataObject::SetStream(TTransferFormat format, TStream& stream) {
  SetBytes(format, stream.ReadRest());
}

void TDataObject::SetText(const std::string& text) {
  const std::wstring wide = ToUtf16(CrLf(text));
  SetBytes(tfText,
           {reinterpret_cast<const char*>(wide.c_str()), (wide.size() + 1) * sizeof(wchar_t)});
}

void TDataObject::SetHtml(const THtmlPiece& piece) {
  // Readers want the zero that the format does not ask for.
  SetBytes(HtmlTransferFormat(), EncodeHtml(piece) + '\0');
}

void TDataObject::SetFiles(const std::vector<std::string>& names) {
  for (const std::string& name : names) {
    if (name.empty() || name.find('\0') != std::string::npos) {
      throw EArgumentOutOfRangeException(Concat("No name of a file: \"", name.c_str(), "\""));
    }
  }
  SetBytes(tfFiles, WriteDroppedFiles(names));
}

void TDataObject::SetPicture(const TGraphic& picture) {
  if (picture.Empty()) throw EInvalidGraphic("There is no picture to give away: it is empty");
  TBitmap seen;
  seen.Assign(&picture);
  std::string png = PngOf(picture, seen);
  TStringStream file;
  seen.SaveToStream(file);
  SetBytes(PngTransferFormat(), std::move(png));
  SetBytes(tfPicture, file.DataString().substr(FileHeadSize));
}

void TDataObject::SetComponent(TComponent& component) {
  TStringStream text;
  if (component.Owner()) {
    WriteComponentsText(text, {&component}, component.Owner());
  } else {
    WriteComponentText(text, &component);
  }
  SetBytes(ComponentTransferFormat(), text.DataString());
  SetText(text.DataString());
}

void TDataObject::Assign(const TTransferData& data) {
  TDataObject copy;
  for (const TTransferFormat format : data.Formats()) {
    if (auto bytes = data.Bytes(format)) copy.SetBytes(format, std::move(*bytes));
  }
  FEntries = std::move(copy.FEntries);
}

IDataObject* TDataObject::Interface() const { return new TComData(*this); }

}  // namespace vcl
