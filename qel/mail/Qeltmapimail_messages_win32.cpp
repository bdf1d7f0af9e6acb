// TQELMapiMessage and TQELMapiAttachment: mails for the system's mail program, and their
// collections.
#include "qel/mail/Qeltmapimail.h"
#include "qel/mail/private/living.h"
#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/properties.h"

namespace qel {

const vcl::TClass& TQELMapiAttachment::Class() {
  using T = TQELMapiAttachment;
  static const vcl::TClass info =
      vcl::Describe<T, TCollectionItem>("qel::TQELMapiAttachment", "qel/mail/Qeltmapimail.h",
                                        {vcl::Property<&T::Filename, &T::SetFilename>("Filename")});
  return info;
}

TQELMapiAttachment::TQELMapiAttachment(vcl::TCollection* collection)
    : TCollectionItem(collection) {}

TQELMapiAttachment::~TQELMapiAttachment() = default;

TQELMapiMessage* TQELMapiAttachment::Message() const {
  const auto* attachments = dynamic_cast<const TQELMapiAttachments*>(Collection());
  return attachments ? attachments->GetOwner() : nullptr;
}

void TQELMapiAttachment::Assign(const vcl::TPersistent* source) {
  const auto* other = dynamic_cast<const TQELMapiAttachment*>(source);
  if (!other) return TCollectionItem::Assign(source);
  FFilename = other->FFilename;
}

const vcl::TClass& TQELMapiAttachments::Class() {
  static const vcl::TClass info = vcl::Describe<TQELMapiAttachments, TCollection>(
      "qel::TQELMapiAttachments", "qel/mail/Qeltmapimail.h", {});
  return info;
}

TQELMapiAttachments::TQELMapiAttachments(TQELMapiMessage* owner)
    : TCollection(TQELMapiAttachment::Class()), FOwner(owner) {}

TQELMapiAttachment* TQELMapiAttachments::Add(const std::string& fileName) {
  auto* attachment = static_cast<TQELMapiAttachment*>(TCollection::Add());
  attachment->SetFilename(fileName);
  return attachment;
}

TQELMapiAttachment* TQELMapiAttachments::GeTQELMapiAttachment(int index) const {
  return static_cast<TQELMapiAttachment*>(Items(index));
}

void TQELMapiAttachments::SeTQELMapiAttachment(int index, const TQELMapiAttachment* value) {
  Items(index)->Assign(value);
}

const vcl::TClass& TQELMapiMessage::Class() {
  using T = TQELMapiMessage;
  static const vcl::TClass info = vcl::Describe<T, TCollectionItem>(
      "qel::TQELMapiMessage", "qel/mail/Qeltmapimail.h",
      {
          vcl::Property<&T::Message, &T::SetMessage>("Message"),
          vcl::Property<&T::Attachments, &T::SetAttachments>("Attachments"),
          vcl::Property<&T::Subject, &T::SetSubject>("Subject"),
          vcl::Property<&T::RecipientsTo, &T::SetRecipientsTo>("RecipientsTo"),
          vcl::Property<&T::RecipientsCC, &T::SetRecipientsCC>("RecipientsCC"),
          vcl::Property<&T::RecipientsBC, &T::SetRecipientsBC>("RecipientsBC"),
          vcl::Property<&T::Receipt, &T::SetReceipt>("Receipt").Default(false),
          vcl::Property<&T::Dialog, &T::SetDialog>("Dialog").Default(false),
      });
  return info;
}

TQELMapiMessage::TQELMapiMessage(vcl::TCollection* collection)
    : TCollectionItem(collection),
      FMessage(std::make_unique<vcl::TStringList>()),
      FRecipientsTo(std::make_unique<vcl::TStringList>()),
      FRecipientsCC(std::make_unique<vcl::TStringList>()),
      FRecipientsBC(std::make_unique<vcl::TStringList>()),
      FAttachments(std::make_unique<TQELMapiAttachments>(this)) {}

TQELMapiMessage::~TQELMapiMessage() = default;

TQELMapiMail* TQELMapiMessage::Mail() const {
  const auto* messages = dynamic_cast<const TQELMapiMessages*>(Collection());
  return messages ? messages->GetOwner() : nullptr;
}

int TQELMapiMessage::RecipientCount() const {
  return FRecipientsTo->Count() + FRecipientsCC->Count() + FRecipientsBC->Count();
}

void TQELMapiMessage::Assign(const vcl::TPersistent* source) {
  const auto* other = dynamic_cast<const TQELMapiMessage*>(source);
  if (!other) return TCollectionItem::Assign(source);
  if (other == this) return;
  FSubject = other->FSubject;
  FReceipt = other->FReceipt;
  FDialog = other->FDialog;
  for (auto list : {&TQELMapiMessage::FMessage, &TQELMapiMessage::FRecipientsTo,
                    &TQELMapiMessage::FRecipientsCC, &TQELMapiMessage::FRecipientsBC}) {
    (this->*list)->Assign((other->*list).get());
  }
  FAttachments->Assign(other->FAttachments.get());
}

const vcl::TClass& TQELMapiMessages::Class() {
  static const vcl::TClass info = vcl::Describe<TQELMapiMessages, TCollection>(
      "qel::TQELMapiMessages", "qel/mail/Qeltmapimail.h", {});
  return info;
}

TQELMapiMessages::TQELMapiMessages(TQELMapiMail* owner)
    : TCollection(TQELMapiMessage::Class()), FOwner(owner) {}

TQELMapiMessage* TQELMapiMessages::Add() {
  return static_cast<TQELMapiMessage*>(TCollection::Add());
}

bool TQELMapiMessages::Delete(int index) {
  const vcl::TWatch watch(FOwner);
  try {
    const TLiving living(*GetQELMapiMessage(index));
    FOwner->OnDeleteMail(this, GetQELMapiMessage(index));
    // The handler may have deleted the message, alone or with its collection, or moved it.
    delete living.Get();
    return true;
  } catch (...) {
    vcl::BaseApplication().HandleCurrentException(watch.Gone() ? nullptr : this);
    return false;
  }
}

TQELMapiMessage* TQELMapiMessages::GetQELMapiMessage(int index) const {
  return static_cast<TQELMapiMessage*>(Items(index));
}

void TQELMapiMessages::SetQELMapiMessage(int index, const TQELMapiMessage* value) {
  Items(index)->Assign(value);
}

}  // namespace qel
