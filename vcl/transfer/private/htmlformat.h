// The record in which programs hand each other HTML (Microsoft, "HTML Clipboard Format"): lines of
// offsets in bytes, and then a page in UTF-8 with the piece in it.
#pragma once

#include <string>
#include <string_view>

#include "vcl/transfer/transferdata.h"

namespace vcl {

std::string EncodeHtml(const THtmlPiece& piece);
/// Raises EConvertError, with the value, for offsets that are none or lie outside.
THtmlPiece DecodeHtml(std::string_view bytes);

}  // namespace vcl
