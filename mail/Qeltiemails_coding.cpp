#include <algorithm>
#include <array>
#include <limits>

#include "mail/Qeltiemails.h"
#include "mail/base64.h"
#include "mail/living.h"

namespace qel {
namespace {

constexpr int LineBytes = 57;
constexpr std::size_t LineLetters = Base64Size(LineBytes);
constexpr int BlockBytes = 40 * LineBytes;
using TBlock = std::array<unsigned char, BlockBytes>;

void AddLine(const unsigned char* bytes, std::int64_t count, vcl::TStrings& lines) {
  char letters[LineLetters];
  const auto size = static_cast<std::size_t>(count);
  EncodeBase64(bytes, size, letters);
  lines.Add(std::string(letters, Base64Size(size)));
}

}  // namespace

void TQELSMTPMail::Base64Encode(TQELAttachment& attachment) {
  const auto life = attachment.Life();
  auto lines = std::make_unique<TTextLines>();
  {
    vcl::TFileStream file(attachment.FileName(), vcl::fmOpenRead | vcl::fmShareDenyNone);
    const std::int64_t size = file.Size();
    DoEncodeStart(attachment.FileName(),
                  static_cast<int>(std::min<std::int64_t>(size, std::numeric_limits<int>::max())));
    if (!EncodeBlocks(file, size, *lines) || !EncodeRest(file, size % BlockBytes, *lines)) return;
  }
  // What a file has reached stays for the next: a short one behind a whole one has no event.
  if (FLastEncodePercent < 100) DoEncodeProgress(100);
  Pump();
  if (Aborted()) return;
  Living(life).SetLines(std::move(lines));
  DoEncodeEnd();
}

bool TQELSMTPMail::EncodeBlocks(vcl::TStream& file, std::int64_t size, vcl::TStrings& lines) {
  int threshold = ProgressStep();
  std::int64_t done = 0;
  TBlock block;
  for (std::int64_t left = size / BlockBytes; left > 0; --left) {
    Pump();
    if (Aborted()) return false;
    file.ReadBuffer(block.data(), BlockBytes);
    for (int at = 0; at < BlockBytes; at += LineBytes) {
      AddLine(block.data() + at, LineBytes, lines);
      done += LineBytes;
      FLastEncodePercent = Percent(static_cast<double>(done), static_cast<double>(size));
      if (StepReached(FLastEncodePercent, threshold)) DoEncodeProgress(FLastEncodePercent);
      Pump();
    }
  }
  return true;
}

bool TQELSMTPMail::EncodeRest(vcl::TStream& file, std::int64_t count, vcl::TStrings& lines) {
  TBlock block;
  file.ReadBuffer(block.data(), count);
  for (std::int64_t group = count / 3; group > 0; --group) {
    Pump();
    if (Aborted()) return false;
  }
  for (std::int64_t at = 0; at < count; at += LineBytes) {
    AddLine(block.data() + at, std::min<std::int64_t>(LineBytes, count - at), lines);
  }
  return true;
}

}  // namespace qel
