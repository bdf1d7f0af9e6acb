// The editors of mails and attachments: what their form lists, and what it adds.
#include "qel/design/Qelmaileditors.h"

#include "qel/design/itemsform.h"
#include "qel/mail/Qeltiemails_message.h"
#include "qel/mail/Qeltmapimail.h"
#include "vcl/dialogs/dialogs.h"

namespace qel {
namespace {

/// Has the user choose a file; empty when none was chosen.
std::string ChosenFile() {
  vcl::TOpenDialog dialog(nullptr);
  dialog.SetFilter("All Files (*.*)|*.*|");
  dialog.SetOptions({vcl::ofHideReadOnly, vcl::ofNoChangeDir, vcl::ofFileMustExist});
  return dialog.Execute() ? dialog.FileName() : std::string();
}

/// A file is attached under its full name: the program's current folder may be any.
vcl::TCollectionItem* NewAttachment(TQELAttachments& attachments) {
  const std::string fileName = ChosenFile();
  if (fileName.empty()) return nullptr;
  TQELAttachment* attachment = attachments.Add(fileName);
  attachment->SetFileName(fileName);
  return attachment;
}

vcl::TCollectionItem* NewMapiAttachment(TQELMapiAttachments& attachments) {
  const std::string fileName = ChosenFile();
  return fileName.empty() ? nullptr : attachments.Add(fileName);
}

template <class Messages>
vcl::TCollectionItem* NewMessage(Messages& messages) {
  return messages.Add();
}

}  // namespace

void TQELAttachmentProperty::Edit() {
  auto* attachments = dynamic_cast<TQELAttachments*>(ObjectValue());
  if (attachments) EditItems(*this, *attachments, "FileName", &NewAttachment);
}

void TQELInetProperty::Edit() {
  auto* messages = dynamic_cast<TQELMessages*>(ObjectValue());
  if (messages) EditItems(*this, *messages, "Subject", &NewMessage<TQELMessages>);
}

void TQELMapiAttachmentProperty::Edit() {
  auto* attachments = dynamic_cast<TQELMapiAttachments*>(ObjectValue());
  if (attachments) EditItems(*this, *attachments, "Filename", &NewMapiAttachment);
}

void TQELMapiProperty::Edit() {
  auto* messages = dynamic_cast<TQELMapiMessages*>(ObjectValue());
  if (messages) EditItems(*this, *messages, "Subject", &NewMessage<TQELMapiMessages>);
}

}  // namespace qel
