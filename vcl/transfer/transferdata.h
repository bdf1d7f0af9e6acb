// TTransferData: data that comes from the clipboard or is dragged in, in several formats at once.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "vcl/graphics/picture.h"
#include "vcl/rtl/component.h"
#include "vcl/rtl/sets.h"

namespace vcl {

class TStream;

/// The number of a format: one of the system's (CF_...), or of a name (RegisterTransferFormat).
using TTransferFormat = UINT;
inline constexpr TTransferFormat tfText = 13, tfPicture = 8, tfFiles = 15;

/// The number that all programs have for the name, compared without case. Raises EOutOfResources
/// when the system has no more.
VCL_API TTransferFormat RegisterTransferFormat(const std::string& name);
/// The name of a registered format; "Text", "Picture" and so on for the system's own, else "Format"
/// and the number.
VCL_API std::string TransferFormatName(TTransferFormat format);

/// What data may be: text, HTML, a picture, names of files, a component.
enum TDataKind { dkText, dkHtml, dkPicture, dkFiles, dkComponent };
template <>
inline constexpr TEnumText EnumText<TDataKind>{
    "TDataKind", "dkText dkHtml dkPicture dkFiles dkComponent", "TDataKinds"};
using TDataKinds = TSet<TDataKind>;

/// A piece of HTML, and the address of the page that it was taken from; empty when unknown.
struct THtmlPiece {
  std::string Html;
  std::string SourceUrl;
};

/// Data in one or more formats. What is asked for by kind raises EConvertError, with what is wrong,
/// when the format is there and damaged (pictures: EInvalidGraphic).
class VCL_API TTransferData {
 public:
  virtual ~TTransferData() = default;

  /// The formats, the most telling one first.
  virtual std::vector<TTransferFormat> Formats() const = 0;
  virtual bool HasFormat(TTransferFormat format) const;
  /// The bytes in the format; nothing when it is not there. The system may have put zeros behind.
  virtual std::optional<std::string> Bytes(TTransferFormat format) const = 0;

  /// True when one of the formats that the kind is read from is there.
  bool Has(TDataKind kind) const;
  bool Has(TDataKinds kinds) const;
  /// The text, whose lines end with LF here; empty when there is none.
  std::string AsText() const;
  /// Nothing when there is no HTML.
  std::optional<THtmlPiece> AsHtml() const;
  /// The names of the files, with their folders; none when there are none.
  std::vector<std::string> Files() const;
  /// Puts the picture into `picture`: a PNG with what it covers only in part, else a bitmap. False,
  /// and nothing changes, when there is none.
  bool GetPicture(TPicture& picture) const;
  /// Writes the bytes in the format to the stream; false when it is not there.
  bool Read(TTransferFormat format, TStream& stream) const;
  /// Makes the component that is there in the text form of form files, owned by `owner`, and in
  /// `parent` where it is a control (null: nowhere); null when there is none. Raises what reading a
  /// form file raises; nothing is made then.
  TComponent* GetComponent(TComponent* owner, TComponent* parent) const;

 protected:
  TTransferData() = default;
  TTransferData(const TTransferData&) = default;
  TTransferData& operator=(const TTransferData&) = default;
};

/// The formats "HTML Format", "PNG" and the text form of components.
VCL_API TTransferFormat HtmlTransferFormat();
VCL_API TTransferFormat PngTransferFormat();
VCL_API TTransferFormat ComponentTransferFormat();

}  // namespace vcl
