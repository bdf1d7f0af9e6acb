// Form files as a whole: the text form and the binary form, the conversion between them, and the
// reading and writing of components in either.
//
//     object Form1: TForm1
//       Caption = 'It'#39's a form'
//       Font.Color = clRed
//       object Button1: TButton
//         Anchors = [akLeft, akBottom]
//         OnClick = Button1Click
//       end
//     end
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "vcl/rtl/writer.h"

namespace vcl {

class TComponent;
class TReaderKeeper;
class TStream;

/// Where in a text the values of the binary form made of it came from.
class VCL_API TFormLines {
 public:
  /// Notes that the bytes from an offset on, behind those noted before, come from a line.
  void Add(std::int64_t offset, int line) { FLines.emplace_back(offset, line); }
  /// The line of the byte at an offset; 0 when nothing is known of it.
  int LineOf(std::int64_t offset) const;

 private:
  std::vector<std::pair<std::int64_t, int>> FLines;
};

/// True for the words that the text form keeps for itself, in any case: nothing that it names may
/// be called so.
VCL_API bool IsFormWord(std::string_view name);

/// True when the bytes begin as a form file's binary form.
VCL_API bool IsBinaryForm(std::string_view bytes);

/// Converts the components that stand one behind another in the rest of a text into binary forms
/// one behind another, and notes their lines. Raises EParserError, with the line, for what is no
/// form, and then writes nothing.
///
/// The text is UTF-8; its lines end with CR LF or LF.
VCL_API void ObjectTextToBinary(TStream& text, TStream& binary, TFormLines* lines = nullptr);
/// The reverse; lines end with LF. Raises EReadError, with the offset, for what is no form, and
/// then writes nothing.
VCL_API void ObjectBinaryToText(TStream& binary, TStream& text);

/// Reads the form file that the rest of the stream is, in either form, into `root`, or makes a
/// root; see TReader::ReadRootComponent. Messages name the line of a text.
/// They begin with `name`, when there is one, which says what is read. With a keeper nothing is
/// lost (TReader::SetKeeper).
VCL_API TComponent* ReadComponentFile(TStream& stream, TComponent* root,
                                      const std::string& name = {},
                                      TReaderKeeper* keeper = nullptr);
/// Reads a file; messages name it. Raises EFOpenError too.
VCL_API TComponent* ReadComponentFile(const std::string& fileName, TComponent* root);
/// Reads the components in the rest of the stream, in either form, into an owner and a parent; see
/// TReader::ReadComponents.
VCL_API void ReadComponentsInto(TStream& stream, TComponent* owner, TComponent* parent,
                                const std::function<void(TComponent*)>& made,
                                TReaderKeeper* keeper = nullptr);

/// Write a root; see TWriter, whose SetRootClassName gets `className`.
VCL_API void WriteComponentBinary(TStream& stream, TComponent* root,
                                  const std::string& className = {});
VCL_API void WriteComponentText(TStream& stream, TComponent* root,
                                const std::string& className = {});
/// The same as the difference from what the root and its frames descend from.
VCL_API void WriteComponentBinary(TStream& stream, TComponent* root, const TFormAncestry& ancestry);
VCL_API void WriteComponentText(TStream& stream, TComponent* root, const TFormAncestry& ancestry);
/// Writes some of a root's components, whole but for its frames, as a text that ReadComponentsInto
/// reads.
VCL_API void WriteComponentsText(TStream& stream, const std::vector<TComponent*>& components,
                                 TComponent* root, const TFormAncestry& ancestry = {});

}  // namespace vcl
