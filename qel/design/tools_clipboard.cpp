// The tool that shows what is on the clipboard.
#include "qel/design/toollist.h"
#include "qel/design/tools.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/text.h"
#include "vcl/transfer/clipboard.h"

namespace qel {
namespace {

using namespace vcl;

std::string FileNames() {
  std::string names;
  for (const std::string& name : Clipboard()->Files()) names += name + '\n';
  return names;
}

std::string PictureSize() {
  TPicture picture;
  Clipboard()->GetPicture(picture);
  return Concat("A picture of ", IntToStr(picture.Width()), " by ", IntToStr(picture.Height()),
                " pixels");
}

/// One kind of data on the clipboard, and what there is to see of it.
struct TContent {
  std::string Name;
  std::string Details;
};

TContent Read(TTransferFormat format) {
  const std::string name = TransferFormatName(format);
  switch (format) {
    case tfText: return {name, Clipboard()->AsText()};
    case tfFiles: return {name, FileNames()};
    case tfPicture: return {name, PictureSize()};
    default: return {name, Concat("Data of the format \"", name, "\"")};
  }
}

std::vector<TContent> ReadClipboard() {
  std::vector<TContent> contents;
  const TClipboardTurn turn;
  for (const TTransferFormat format : Clipboard()->Formats()) contents.push_back(Read(format));
  return contents;
}

}  // namespace

void ViewClipboard(TEnvironment&) {
  const auto contents = ReadClipboard();
  TQELToolList list{"Clipboard Contents", {}, [&](int index) {
                      return contents[static_cast<std::size_t>(index)].Details;
                    }};
  for (const TContent& each : contents) list.Lines.push_back(each.Name);
  ShowToolList(list);
}

}  // namespace qel
