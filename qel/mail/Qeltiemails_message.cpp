// TQELMessage and TQELAttachment: a mail, its attachments, and the collections of both.
#include "qel/mail/Qeltiemails_message.h"
#include "qel/mail/Qeltiemails_smtp.h"
#include "qel/mail/private/living.h"
#include "qel/mail/private/mimetypes.h"
#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/properties.h"

namespace qel {
namespace {

bool DeleteItem(vcl::TCollection& collection, int index) {
  try {
    collection.Delete(index);
    return true;
  } catch (...) {
    vcl::BaseApplication().HandleCurrentException(&collection);
    return false;
  }
}

}  // namespace

const vcl::TClass& TQELAttachment::Class() {
  using T = TQELAttachment;
  static const vcl::TClass info = vcl::Describe<T, TCollectionItem>(
      "qel::TQELAttachment", "qel/mail/Qeltiemails.h",
      {
          vcl::Property<&T::FileName, &T::SetFileName>("FileName"),
          vcl::Property<&T::ContentId, &T::SetContentId>("ContentId").Default(""),
      });
  return info;
}

TQELAttachment::TQELAttachment(vcl::TCollection* collection)
    : TCollectionItem(collection),
      FLines(std::make_unique<TTextLines>()),
      FData(std::make_unique<vcl::TMemoryStream>()) {}

TQELAttachment::~TQELAttachment() = default;

void TQELAttachment::SetLines(std::unique_ptr<TTextLines> lines) {
  FLines = lines ? std::move(lines) : std::make_unique<TTextLines>();
}

void TQELAttachment::SetData(std::unique_ptr<vcl::TMemoryStream> data) { FData = std::move(data); }

TQELMessage* TQELAttachment::Message() const {
  const auto* attachments = dynamic_cast<const TQELAttachments*>(Collection());
  return attachments ? attachments->GetOwner() : nullptr;
}

void TQELAttachment::SaveToFile(const std::string& fileName) const {
  if (!FData) return;
  try {
    FData->SaveToFile(fileName);
  } catch (...) {
    vcl::BaseApplication().HandleCurrentException(const_cast<TQELAttachment*>(this));
  }
}

void TQELAttachment::Assign(const vcl::TPersistent* source) {
  const auto* other = dynamic_cast<const TQELAttachment*>(source);
  if (!other) return TCollectionItem::Assign(source);
  if (other == this) return;
  FFileName = other->FFileName;
  FMimeType = other->FMimeType;
  FContentId = other->FContentId;
  FLines->Assign(other->FLines.get());
  FData = other->FData ? std::make_unique<vcl::TMemoryStream>() : nullptr;
  if (FData) other->FData->SaveToStream(*FData);
}

const vcl::TClass& TQELAttachments::Class() {
  static const vcl::TClass info = vcl::Describe<TQELAttachments, TCollection>(
      "qel::TQELAttachments", "qel/mail/Qeltiemails.h", {});
  return info;
}

TQELAttachments::TQELAttachments(TQELMessage* owner)
    : TCollection(TQELAttachment::Class()), FOwner(owner) {}

TQELAttachment* TQELAttachments::Add(const std::string& fileName) {
  auto* attachment = static_cast<TQELAttachment*>(TCollection::Add());
  attachment->SetFileName(vcl::ExtractFileName(fileName));
  attachment->SetMimeType(GetMimeType(fileName));
  return attachment;
}

bool TQELAttachments::Delete(int index) { return DeleteItem(*this, index); }

std::string TQELAttachments::GetMimeType(const std::string& fileName) {
  const std::string type = RegisteredMimeType(vcl::ExtractFileExt(fileName));
  return type.empty() ? "application/octet-stream" : type;
}

TQELAttachment* TQELAttachments::GeTQELAttachment(int index) const {
  return static_cast<TQELAttachment*>(Items(index));
}

void TQELAttachments::SeTQELAttachment(int index, const TQELAttachment* value) {
  Items(index)->Assign(value);
}

const vcl::TClass& TQELMessage::Class() {
  using T = TQELMessage;
  static const vcl::TClass info = vcl::Describe<T, TCollectionItem>(
      "qel::TQELMessage", "qel/mail/Qeltiemails.h",
      {
          vcl::Property<&T::FromMail, &T::SetFromMail>("FromMail"),
          vcl::Property<&T::ReplyTo, &T::SetReplyTo>("ReplyTo"),
          vcl::Property<&T::SendTo, &T::SetSendTo>("SendTo"),
          vcl::Property<&T::Subject, &T::SetSubject>("Subject"),
          vcl::Property<&T::FromName, &T::SetFromName>("FromName"),
          vcl::Property<&T::Message, &T::SetMessage>("Message"),
          vcl::Property<&T::Attachments, &T::SetAttachments>("Attachments"),
          vcl::Property<&T::Bcc, &T::SetBcc>("Bcc").Default(""),
          vcl::Property<&T::Cc, &T::SetCc>("Cc").Default(""),
          vcl::Property<&T::HtmlText, &T::SetHtmlText>("HtmlText").Default(""),
      });
  return info;
}

TQELMessage::TQELMessage(vcl::TCollection* collection)
    : TCollectionItem(collection),
      FMessage(std::make_unique<vcl::TStringList>()),
      FHeaders(std::make_unique<vcl::TStringList>()),
      FAttachments(std::make_unique<TQELAttachments>(this)) {}

TQELMessage::~TQELMessage() = default;

TQELMailHost* TQELMessage::Host() const {
  const auto* messages = dynamic_cast<const TQELMessages*>(Collection());
  return messages ? messages->GetOwner() : nullptr;
}

std::string TQELMessage::DisplayName() const {
  return dynamic_cast<const TQELSMTPMail*>(Host()) ? "Outgoing Message" : "Incoming Message";
}

void TQELMessage::Assign(const vcl::TPersistent* source) {
  const auto* other = dynamic_cast<const TQELMessage*>(source);
  if (!other) return TCollectionItem::Assign(source);
  if (other == this) return;
  for (std::string TQELMessage::*text :
       {&TQELMessage::FFromMail, &TQELMessage::FReplyTo, &TQELMessage::FSendTo,
        &TQELMessage::FSubject, &TQELMessage::FFromName, &TQELMessage::FMessageId,
        &TQELMessage::FInReplyTo, &TQELMessage::FDate, &TQELMessage::FCc, &TQELMessage::FBcc,
        &TQELMessage::FHtmlText, &TQELMessage::FReferences, &TQELMessage::FNotes}) {
    this->*text = other->*text;
  }
  FMessage->Assign(other->FMessage.get());
  FHeaders->Assign(other->FHeaders.get());
  FAttachments->Assign(other->FAttachments.get());
}

const vcl::TClass& TQELMessages::Class() {
  static const vcl::TClass info =
      vcl::Describe<TQELMessages, TCollection>("qel::TQELMessages", "qel/mail/Qeltiemails.h", {});
  return info;
}

TQELMessages::TQELMessages(TQELMailHost* owner)
    : TCollection(TQELMessage::Class()), FOwner(owner) {}

TQELMessage* TQELMessages::Add() { return static_cast<TQELMessage*>(TCollection::Add()); }

bool TQELMessages::Delete(int index) { return DeleteItem(*this, index); }

TQELMessage* TQELMessages::GetQELMessage(int index) const {
  return static_cast<TQELMessage*>(Items(index));
}

void TQELMessages::SetQELMessage(int index, const TQELMessage* value) {
  Items(index)->Assign(value);
}

}  // namespace qel
