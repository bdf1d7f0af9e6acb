// How the sender encodes attachments: a file's blocks as lines of base64.
#include <algorithm>
#include <array>
#include <limits>
#include <vector>

#include "qel/mail/Qeltiemails_smtp.h"
#include "qel/mail/private/base64.h"
#include "qel/mail/private/living.h"

namespace qel {
namespace {

constexpr int LineBytes = 57;
constexpr std::size_t LineLetters = Base64Size(LineBytes);
constexpr int BlockBytes = 40 * LineBytes;
using TBlock = std::array<unsigned char, BlockBytes>;

/// How many bytes are read from a file at a time: several blocks, as each reading has its price.
constexpr std::int64_t PortionBytes = std::int64_t{32} * BlockBytes;

void AddLine(const unsigned char* bytes, std::int64_t count, TTextLines& lines) {
  char letters[LineLetters];
  const auto size = static_cast<std::size_t>(count);
  EncodeBase64(bytes, size, letters);
  lines.AddLine({letters, Base64Size(size)});
}

}  // namespace

void TQELSMTPMail::Base64Encode(TQELAttachment& attachment) {
  const TLiving living(attachment);
  auto lines = std::make_unique<TTextLines>();
  {
    vcl::TFileStream file(attachment.FileName(), vcl::fmOpenRead | vcl::fmShareDenyNone);
    const std::int64_t size = file.Size();
    DoEncodeStart(attachment.FileName(),
                  static_cast<int>(std::min<std::int64_t>(size, std::numeric_limits<int>::max())));
    lines->Reserve(Base64Size(static_cast<std::size_t>(size)),
                   static_cast<std::size_t>(size / LineBytes + 1));
    if (!EncodeBlocks(file, size, *lines) || !EncodeRest(file, size % BlockBytes, *lines)) return;
  }
  // What a file has reached stays for the next: a short one behind a whole one has no event.
  if (FLastEncodePercent < 100) DoEncodeProgress(100);
  Pump();
  if (Aborted()) return;
  living->SetLines(std::move(lines));
  DoEncodeEnd();
}

bool TQELSMTPMail::EncodeBlocks(vcl::TStream& file, std::int64_t size, TTextLines& lines) {
  int threshold = ProgressStep();
  std::vector<unsigned char> portion;
  for (std::int64_t done = 0; done < size - size % BlockBytes; done += LineBytes) {
    const std::int64_t at = done % PortionBytes;
    if (at == 0) {
      portion.resize(static_cast<std::size_t>(
          std::min(PortionBytes, (size - done) / BlockBytes * BlockBytes)));
      file.ReadBuffer(portion.data(), std::ssize(portion));
    }
    if (done % BlockBytes == 0) {
      Pump();
      if (Aborted()) return false;
    }
    AddLine(portion.data() + at, LineBytes, lines);
    FLastEncodePercent = Percent(static_cast<double>(done + LineBytes), static_cast<double>(size));
    if (StepReached(FLastEncodePercent, threshold)) DoEncodeProgress(FLastEncodePercent);
    Pump();
  }
  return true;
}

bool TQELSMTPMail::EncodeRest(vcl::TStream& file, std::int64_t count, TTextLines& lines) {
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
