// TDataObject: data of the program's own, for the clipboard or to be dragged.
#pragma once

#include <span>
#include <utility>

#include "vcl/transfer/transferdata.h"

struct IDataObject;

namespace vcl {

/// Data that the program gives away. Each kind sets the formats that other programs know; setting
/// one again replaces it.
class VCL_API TDataObject : public TTransferData {
 public:
  std::vector<TTransferFormat> Formats() const override;
  std::optional<std::string> Bytes(TTransferFormat format) const override;

  void Clear() { FEntries.clear(); }
  void SetBytes(TTransferFormat format, std::string bytes);
  /// The rest of the stream.
  void SetStream(TTransferFormat format, TStream& stream);
  /// A zero in the text ends it for others. Lines end with CR LF there, however they end here.
  void SetText(const std::string& text);
  /// Raises EConvertError for an address with a line break in it.
  void SetHtml(const THtmlPiece& piece);
  /// Raises EArgumentOutOfRangeException for an empty name or one with a zero in it.
  void SetFiles(const std::vector<std::string>& names);
  /// As a DIB over white, and as a PNG: a TPngImage as it is, with what it covers only in part; of
  /// other kinds what is seen over white. Raises EInvalidGraphic for an empty picture.
  void SetPicture(const TGraphic& picture);
  /// As the text form of form files, and as text.
  void SetComponent(TComponent& component);
  /// All formats of the other data, in place of what is there.
  void Assign(const TTransferData& data);

  /// The data as the system's interface for it, which keeps a copy; the caller releases it.
  IDataObject* Interface() const;

 private:
  std::vector<std::pair<TTransferFormat, std::string>> FEntries;
};

}  // namespace vcl
