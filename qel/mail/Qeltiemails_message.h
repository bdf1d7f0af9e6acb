// Mails with their attachments, in the collections that the components keep them in.
#pragma once

#include <memory>
#include <string>

#include "qel/core/api.h"
#include "qel/mail/textlines.h"
#include "vcl/rtl/collection.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/strings.h"
#include "vcl/rtl/watch.h"

namespace qel {

class TQELMailHost;
class TQELMessage;

/// A file that travels with a message.
class QEL_API TQELAttachment : public vcl::TCollectionItem, public vcl::TWatched {
 public:
  explicit TQELAttachment(vcl::TCollection* collection);
  ~TQELAttachment() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// The file's name. To be sent, it is opened as it stands here: a name without a folder in the
  /// program's current folder. In the standard format one that has Data is sent from there.
  const std::string& FileName() const { return FFileName; }
  void SetFileName(const std::string& fileName) { FFileName = fileName; }
  /// The lines that the contents travel as. Never null.
  TTextLines* Lines() const { return FLines.get(); }
  void SetLines(std::unique_ptr<TTextLines> lines);
  /// The contents of an attachment that was received. Null only after SetData(nullptr).
  vcl::TMemoryStream* Data() const { return FData.get(); }
  void SetData(std::unique_ptr<vcl::TMemoryStream> data);
  const std::string& MimeType() const { return FMimeType; }
  void SetMimeType(const std::string& mimeType) { FMimeType = mimeType; }
  /// The name by which the HTML text shows the attachment ("cid:…", RFC 2392), without brackets;
  /// empty for one that it does not show. Of the standard format.
  const std::string& ContentId() const { return FContentId; }
  void SetContentId(const std::string& contentId) { FContentId = contentId; }
  /// The message that it belongs to; null for an attachment of none.
  TQELMessage* Message() const;

  /// Writes Data to a file. A failure is shown by the application's handler and not raised; without
  /// data nothing is written.
  void SaveToFile(const std::string& fileName) const;
  std::string DisplayName() const override { return "Mail Attachment"; }
  void Assign(const vcl::TPersistent* source) override;

 private:
  std::string FFileName;
  std::unique_ptr<TTextLines> FLines;
  std::unique_ptr<vcl::TMemoryStream> FData;
  std::string FMimeType, FContentId;
};

/// The attachments of a message.
class QEL_API TQELAttachments : public vcl::TCollection {
 public:
  explicit TQELAttachments(TQELMessage* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  TQELMessage* GetOwner() const { return FOwner; }
  /// Appends an attachment with the name part of the path and the type of such files. The folder is
  /// not kept: set FileName to a full name to send a file from elsewhere than the current folder.
  TQELAttachment* Add(const std::string& fileName);
  /// Deletes the attachment and returns true. What is raised is shown by the application's handler,
  /// and the result is false.
  bool Delete(int index);
  /// The MIME type that the system has registered for the file name's extension, else
  /// "application/octet-stream".
  static std::string GetMimeType(const std::string& fileName);
  /// Raise EListError outside 0 to Count - 1. A value is copied into the item.
  TQELAttachment* GeTQELAttachment(int index) const;
  void SeTQELAttachment(int index, const TQELAttachment* value);

 private:
  TQELMessage* FOwner;
};

/// A mail. In the classic format addresses and texts travel as they are: nothing is encoded in the
/// header, and Bcc, Cc, HtmlText and References are neither sent nor read.
class QEL_API TQELMessage : public vcl::TCollectionItem, public vcl::TWatched {
 public:
  explicit TQELMessage(vcl::TCollection* collection);
  ~TQELMessage() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// The sender's address, without the name.
  const std::string& FromMail() const { return FFromMail; }
  void SetFromMail(const std::string& fromMail) { FFromMail = fromMail; }
  const std::string& ReplyTo() const { return FReplyTo; }
  /// The address that answers are to go to.
  void SetReplyTo(const std::string& replyTo) { FReplyTo = replyTo; }
  /// The recipients' addresses, separated by commas.
  const std::string& SendTo() const { return FSendTo; }
  void SetSendTo(const std::string& sendTo) { FSendTo = sendTo; }
  const std::string& Subject() const { return FSubject; }
  /// The subject line.
  void SetSubject(const std::string& subject) { FSubject = subject; }
  /// The sender's name.
  const std::string& FromName() const { return FFromName; }
  void SetFromName(const std::string& fromName) { FFromName = fromName; }
  /// Further recipients, whom all see; addresses and names, separated by commas.
  const std::string& Cc() const { return FCc; }
  void SetCc(const std::string& cc) { FCc = cc; }
  /// Recipients whom nobody sees: they are in no header.
  const std::string& Bcc() const { return FBcc; }
  void SetBcc(const std::string& bcc) { FBcc = bcc; }
  /// The text once more as HTML, for readers that show it; empty for none.
  const std::string& HtmlText() const { return FHtmlText; }
  void SetHtmlText(const std::string& htmlText) { FHtmlText = htmlText; }
  /// The text, a line an item. The setter copies.
  vcl::TStrings* Message() const { return FMessage.get(); }
  void SetMessage(const vcl::TStrings* message) { FMessage->Assign(message); }
  TQELAttachments* Attachments() const { return FAttachments.get(); }
  /// The files that travel with the message.
  void SetAttachments(const TQELAttachments* attachments) { FAttachments->Assign(attachments); }

  /// The number that a received mail came with; sending gives a new one and does not look here.
  const std::string& MessageId() const { return FMessageId; }
  void SetMessageId(const std::string& messageId) { FMessageId = messageId; }
  /// The number of the mail that this one answers; empty for none.
  const std::string& InReplyTo() const { return FInReplyTo; }
  void SetInReplyTo(const std::string& inReplyTo) { FInReplyTo = inReplyTo; }
  /// The numbers of the mails before it in its conversation (RFC 5322, 3.6.4).
  const std::string& References() const { return FReferences; }
  void SetReferences(const std::string& references) { FReferences = references; }
  /// What was wrong with a mail that was read all the same, a line for each; empty for nothing.
  const std::string& Notes() const { return FNotes; }
  void SetNotes(const std::string& notes) { FNotes = notes; }
  /// Set by sending, filled by receiving.
  const std::string& Date() const { return FDate; }
  void SetDate(const std::string& date) { FDate = date; }
  /// The header lines of a received mail, as they came. Sending does not look here.
  vcl::TStrings* Headers() const { return FHeaders.get(); }

  /// The component that it belongs to; null for a message of none.
  TQELMailHost* Host() const;
  std::string DisplayName() const override;
  void Assign(const vcl::TPersistent* source) override;

 private:
  std::string FFromMail, FReplyTo, FSendTo, FSubject, FFromName;
  std::string FCc, FBcc, FHtmlText, FReferences, FNotes;
  std::string FMessageId, FInReplyTo, FDate;
  std::unique_ptr<vcl::TStringList> FMessage, FHeaders;
  std::unique_ptr<TQELAttachments> FAttachments;
};

/// The messages of a component.
class QEL_API TQELMessages : public vcl::TCollection {
 public:
  explicit TQELMessages(TQELMailHost* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  TQELMailHost* GetOwner() const { return FOwner; }
  TQELMessage* Add();
  /// Deletes the message and returns true. What is raised is shown by the application's handler,
  /// and the result is false.
  bool Delete(int index);
  /// Raise EListError outside 0 to Count - 1. A value is copied into the item.
  TQELMessage* GetQELMessage(int index) const;
  void SetQELMessage(int index, const TQELMessage* value);

 private:
  TQELMailHost* FOwner;
};

}  // namespace qel
