// TRecovery: keeping unsaved text in a file, and finding it again.
#include "demos/notes/recovery.h"

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/files.h"
#include "vcl/rtl/text.h"

namespace notes {

using namespace vcl;

namespace {

constexpr std::string_view Heading = "Unsaved text of Notes";

std::string TakeLine(std::string_view& bytes) {
  const auto end = bytes.find('\n');
  if (end == std::string_view::npos) throw EInOutError("it is cut off");
  std::string line(bytes.substr(0, end));
  bytes.remove_prefix(end + 1);
  return line;
}

/// Four lines (heading, file name, kind of line ends, byte order mark), then the text.
TUnsaved Parse(std::string_view bytes, const std::string& name) {
  if (TakeLine(bytes) != Heading) throw EInOutError("it is of another kind");
  TUnsaved unsaved;
  unsaved.FileName = TakeLine(bytes);
  const std::string ends = TakeLine(bytes), mark = TakeLine(bytes);
  unsaved.Text = DecodeText(bytes, name);
  unsaved.Text.Format = {static_cast<TLineEnds>((ends.empty() ? 0 : ends[0] - '0') % 3),
                         mark == "1"};
  return unsaved;
}

}  // namespace

void TRecovery::Keep(const TUnsaved& unsaved) const {
  const TTextFormat& format = unsaved.Text.Format;
  ReplaceContents(FFileName, Concat(Heading, "\n", unsaved.FileName, "\n",
                                    std::to_string(static_cast<int>(format.LineEnds)), "\n",
                                    format.ByteOrderMark ? "1" : "0", "\n", unsaved.Text.Text));
}

std::optional<TUnsaved> TRecovery::Find() const {
  try {
    const auto bytes = ReadWholeFile(FFileName);
    if (!bytes) return {};
    return Parse(*bytes, FFileName);
  } catch (const Exception& error) {
    const std::string aside = FFileName + ".damaged";
    DeleteFile(aside);
    RenameFile(FFileName, aside);
    throw EInOutError(
        Concat("Unsaved text cannot be read: ", error.what(), ". It is in ", aside, " now"));
  }
}

void TRecovery::Discard() const { DeleteFile(FFileName); }

}  // namespace notes
