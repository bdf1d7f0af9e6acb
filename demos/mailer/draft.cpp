// Making a message of a draft.
#include "demos/mailer/draft.h"

#include "vcl/rtl/filenames.h"
#include "vcl/rtl/streams.h"

namespace mailer {

void FillMessage(qel::TQELMessage& message, const TDraft& draft, const TAccount& account) {
  message.SetFromName(account.Name);
  message.SetFromMail(account.Address);
  message.SetSendTo(draft.To);
  message.SetCc(draft.Cc);
  message.SetBcc(draft.Bcc);
  message.SetSubject(draft.Subject);
  message.Message()->SetText(draft.Text);
  for (const std::string& file : draft.Files) {
    // One that cannot be read is told before anything is connected.
    const vcl::TFileStream readable(file, vcl::fmOpenRead | vcl::fmShareDenyNone);
    message.Attachments()->Add(file)->SetFileName(file);
  }
}

}  // namespace mailer
