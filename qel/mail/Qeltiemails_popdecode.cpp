// How the receiver decodes attachments, and what it looks for in lists of lines.
//
// Handlers run meanwhile and may change or delete what is decoded: it is asked for anew behind
// each. The application handles its messages behind each event and at least every 16 KiB, which
// takes some ten microseconds to decode, rather than behind each group of four letters: nobody can
// tell the two apart, and decoding takes a twentieth of the time.
#include <algorithm>

#include "qel/mail/Qeltiemails_pop.h"
#include "qel/mail/private/base64decoder.h"
#include "qel/mail/private/headerfields.h"
#include "qel/mail/private/living.h"
#include "qel/mail/private/uucode.h"

namespace qel {
namespace {

constexpr std::size_t PumpLetters = 16 << 10;
constexpr int PumpLines = PumpLetters / 61;

/// The attachment's stream, where bytes are appended.
vcl::TMemoryStream& DataOf(TQELAttachment& attachment) {
  if (!attachment.Data()) attachment.SetData(std::make_unique<vcl::TMemoryStream>());
  attachment.Data()->Seek(0, vcl::soEnd);
  return *attachment.Data();
}

template <class Test>
bool FindLine(const vcl::TStrings& list, int& index, Test test) {
  for (int i = 0; i < list.Count(); ++i) {
    if (!test(list.Strings(i))) continue;
    index = i;
    return true;
  }
  return false;
}

}  // namespace

void TQELPOPMail::Base64Decode(TQELAttachment& attachment) {
  const TLiving living(attachment);
  DoDecodeStart(attachment);
  DataOf(*living).Reserve(static_cast<std::int64_t>(living->Lines()->Letters().size()) / 4 * 3);
  int threshold = ProgressStep();
  TBase64Decoder decoder;
  std::string bytes;
  for (std::size_t done = 0; done + 4 <= living->Lines()->Letters().size();) {
    const TTextLines& lines = *living->Lines();
    // Until there is an event, which tells of the line that completes a group.
    std::size_t end = std::min(done + PumpLetters, lines.Letters().size() / 4 * 4);
    int line = lines.LineOf(done + 3);
    if (Percent(line, lines.Count()) >= threshold) end = done + 4;
    while (lines.End(line) < end && Percent(line + 1, lines.Count()) < threshold) ++line;
    end = std::min(end, lines.End(line) / 4 * 4);
    bytes.clear();
    decoder.Decode(lines.Letters().substr(done, end - done), bytes);
    DataOf(*living).WriteText(bytes);
    done = end;
    FDecodePercent = Percent(lines.LineOf(end - 1), lines.Count());
    DoDecodeProgress(FDecodePercent, threshold);
    Pump();
  }
  DoDecodeEnd();
}

void TQELPOPMail::UUDecode(TQELAttachment& attachment) {
  const TLiving living(attachment);
  DoDecodeStart(attachment);
  int threshold = ProgressStep();
  auto data = std::make_unique<vcl::TMemoryStream>();
  std::array<unsigned char, UULineBytes> bytes;
  const auto ends = [&](int line) {
    const TTextLines& lines = *living->Lines();
    return line >= lines.Count() || lines.Line(line) == "end" || lines.Line(line) == "`";
  };
  int line = 1;  // Behind the one that begins the file.
  if (line < living->Lines()->Count()) {
    do {
      const TTextLines& lines = *living->Lines();
      const std::size_t count = DecodeUULine(lines.Line(line), bytes);
      data->WriteBuffer(bytes.data(), static_cast<std::int64_t>(count));
      // A line of one letter can stand for 45 bytes.
      CheckSize(static_cast<std::size_t>(data->Size()));
      FDecodePercent = Percent(line, lines.Count());
      if (DoDecodeProgress(FDecodePercent, threshold) || line % PumpLines == 0) Pump();
    } while (!ends(++line));
  }
  living->SetData(std::move(data));
  DoDecodeEnd();
}

void TQELPOPMail::DoDecodeStart(const TQELAttachment& attachment) {
  // The number of lines, not of bytes.
  Fire(OnDecodeStart, this, attachment.FileName(), attachment.Lines()->Count());
}

bool TQELPOPMail::DoDecodeProgress(int percent, int& threshold) {
  if (!StepReached(percent, threshold)) return false;
  Fire(OnDecodeProgress, this, static_cast<std::uint16_t>(percent));
  return true;
}

void TQELPOPMail::DoDecodeEnd() {
  // What an attachment has reached stays for the next: an empty one behind a large one has no
  // event.
  if (FDecodePercent < 100) Fire(OnDecodeProgress, this, std::uint16_t{100});
  Fire(OnDecodeEnd, this);
}

bool TQELPOPMail::GetUUAttachments(const vcl::TStrings& lines, int& index, std::string& name) {
  return FindLine(lines, index, [&](const std::string& line) { return IsUUBegin(line, name); });
}

bool TQELPOPMail::FindInHeaders(std::string_view key, const vcl::TStrings& list, int& index) {
  return FindLine(list, index, [&](const std::string& line) { return StartsWithKey(line, key); });
}

bool TQELPOPMail::FindInStringList(std::string_view key, const vcl::TStrings& list, int& index,
                                   int& position) {
  return FindLine(list, index, [&](const std::string& line) {
    const std::size_t found = FindKey(line, key);
    if (found > 0) position = static_cast<int>(found);
    return found > 0;
  });
}

bool TQELPOPMail::FindInStringListCS(std::string_view key, const vcl::TStrings& list, int& index) {
  return FindLine(list, index,
                  [&](const std::string& line) { return line.find(key) != std::string::npos; });
}

}  // namespace qel
