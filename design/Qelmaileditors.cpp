#include "design/Qelmaileditors.h"

#include "design/itemsform.h"
#include "host/vcl/dialogs.h"
#include "mail/Qeltiemails.h"

namespace qel {
namespace {

/// A file is attached under its full name: the program's current folder may be any.
vcl::TCollectionItem* NewAttachment(TQELAttachments& attachments) {
  vcl::TOpenDialog dialog(nullptr);
  dialog.SetFilter("All Files (*.*)|*.*|");
  dialog.SetOptions({vcl::ofHideReadOnly, vcl::ofNoChangeDir, vcl::ofFileMustExist});
  if (!dialog.Execute()) return nullptr;
  TQELAttachment* attachment = attachments.Add(dialog.FileName());
  attachment->SetFileName(dialog.FileName());
  return attachment;
}

vcl::TCollectionItem* NewMessage(TQELMessages& messages) { return messages.Add(); }

}  // namespace

void TQELAttachmentProperty::Edit() {
  auto* attachments = dynamic_cast<TQELAttachments*>(ObjectValue());
  if (attachments) EditItems(*this, *attachments, "FileName", &NewAttachment);
}

void TQELInetProperty::Edit() {
  auto* messages = dynamic_cast<TQELMessages*>(ObjectValue());
  if (messages) EditItems(*this, *messages, "Subject", &NewMessage);
}

}  // namespace qel
