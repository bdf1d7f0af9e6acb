// How messages become the records of Simple MAPI.
#include <utility>

#include "qel/mail/Qeltmapimail.h"
#include "qel/mail/private/living.h"
#include "qel/mail/private/simplemapi.h"
#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/files.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"

namespace qel {
namespace {

constexpr int MaxRecipients = 1000;
constexpr int MaxAttachments = 100;
/// How much of a recipient's line is looked up.
constexpr std::size_t MaxName = 255;

/// The code for a message that is too large; else 0.
int Excess(const TQELMapiMessage& message) {
  if (message.RecipientCount() > MaxRecipients) return MAPI_E_TOO_MANY_RECIPIENTS;
  if (message.Attachments()->Count() > MaxAttachments) return MAPI_E_TOO_MANY_FILES;
  return SUCCESS_SUCCESS;
}

/// The records of one message, with copies of all that they point to.
class TMapiRecords {
 public:
  TMapiRecords(const TQELMapiMessage& message, const vcl::TStrings& signature,
               std::vector<TQELMapiRecipient> recipients)
      : FSubject(message.Subject()), FRecipients(std::move(recipients)) {
    FRecord.flFlags = message.Receipt() ? MAPI_RECEIPT_REQUESTED : 0;
    FRecord.lpszSubject = MapiText(FSubject);
    PutRecipients();
    PutFiles(*message.Attachments());
    // A blank stands for each file, so that mail programs have a place to show it.
    FText.assign(FFiles.size(), ' ');
    FText += '\r';
    FText += message.Message()->Text() + signature.Text();
    FRecord.lpszNoteText = MapiText(FText);
  }
  TMapiRecords(const TMapiRecords&) = delete;
  TMapiRecords& operator=(const TMapiRecords&) = delete;
  MapiMessage& Record() { return FRecord; }

 private:
  void PutRecipients() {
    for (TQELMapiRecipient& each : FRecipients) {
      MapiRecipDesc& record = FRecipientRecords.emplace_back();
      if (!each.RecipClass) continue;
      record.ulRecipClass = static_cast<ULONG>(each.RecipClass);
      record.lpszName = MapiText(each.Name);
      if (!each.Address.empty()) record.lpszAddress = MapiText(each.Address);
    }
    FRecord.nRecipCount = static_cast<ULONG>(FRecipientRecords.size());
    if (FRecord.nRecipCount) FRecord.lpRecips = FRecipientRecords.data();
  }

  void PutFiles(const TQELMapiAttachments& attachments) {
    for (int i = 0; i < attachments.Count(); ++i) {
      const std::string& path = attachments.GeTQELMapiAttachment(i)->Filename();
      FFiles.push_back(vcl::FileExists(path) ? TFile{path, vcl::ExtractFileName(path)} : TFile{});
    }
    for (TFile& each : FFiles) {
      MapiFileDesc& record = FFileRecords.emplace_back();
      record.nPosition = static_cast<ULONG>(-1);  // Wherever the mail program shows files.
      record.lpszPathName = MapiText(each.Path);
      record.lpszFileName = MapiText(each.Name);
    }
    FRecord.nFileCount = static_cast<ULONG>(FFileRecords.size());
    if (FRecord.nFileCount) FRecord.lpFiles = FFileRecords.data();
  }

  struct TFile {
    std::string Path, Name;
  };
  MapiMessage FRecord{};
  std::string FSubject, FText;
  std::vector<TQELMapiRecipient> FRecipients;
  std::vector<MapiRecipDesc> FRecipientRecords;
  std::vector<TFile> FFiles;
  std::vector<MapiFileDesc> FFileRecords;
};

bool HasBrackets(const std::string& line) {
  return line.find('[') != line.npos && line.find(']') != line.npos;
}

std::string WithoutBrackets(std::string line) {
  line.erase(line.find(']'), 1);
  line.erase(line.find('['), 1);
  return line;
}

/// A recipient for line `i` of lists with `to` and `cc` lines before the blind copies.
TQELMapiRecipient Recipient(int i, int to, int cc, const std::string& line,
                            const std::string& displayName) {
  const auto classOf = [&](int at) {
    return at < to ? MAPI_TO : at < to + cc ? MAPI_CC : MAPI_BCC;
  };
  if (HasBrackets(line) && displayName.find_first_of("[]") == displayName.npos) {
    const std::string address = WithoutBrackets(line);
    // An address in brackets counts with the lines before it: the first of a list belongs to the
    // list before. Mails have always been sent so.
    return {classOf(i - 1), address, address};
  }
  return {classOf(i), displayName, {}};
}

}  // namespace

int TQELMapiMail::SendMapi() {
  CheckMAPI();
  std::vector<TLiving<TQELMapiMessage>> messages;
  for (int i = 0; i < FMessages->Count(); ++i) {
    messages.emplace_back(*FMessages->GetQELMapiMessage(i));
  }
  int result = SUCCESS_SUCCESS;
  for (const auto& each : messages) {
    vcl::TWatch watch(this);
    TQELMapiMessage* const message = each.Get();
    try {
      if (message && !SendOne(*message, result)) return result;
    } catch (...) {
      if (watch.Gone()) throw;
      Guarded(this, [this] { vcl::BaseApplication().HandleCurrentException(this); });
    }
  }
  if (FDeleteAfterSend) DeleteSent();
  return result;
}

bool TQELMapiMail::SendOne(TQELMapiMessage& message, int& result) {
  const TLiving living(message);
  message.SetSent(false);
  Guarded(this, [&] { BeforeSendMail(this, &message); });
  if (const int excess = Excess(*living)) {
    result = excess;
    return false;
  }
  result = HandOver(*living);
  living->SetSent(result == SUCCESS_SUCCESS);
  Guarded(this, [&] {
    message.Sent() ? AfterSendMail(this, &message) : OnSendError(this, result, &message);
  });
  return true;
}

int TQELMapiMail::HandOver(const TQELMapiMessage& message) {
  const TLiving living(message);
  std::vector<TQELMapiRecipient> recipients;
  if (message.RecipientCount()) TheRecipients(message, recipients);
  TMapiRecords records(*living, *FSignature, std::move(recipients));
  // Without recipients it is the user who knows them.
  const bool ask = message.Dialog() || !records.Record().nRecipCount;
  const auto library = Library("MAPISendMail");
  unsigned long result = SUCCESS_SUCCESS;
  Guarded(this, [&] {
    result = library->SendMail(FSession, 0, &records.Record(), ask ? MAPI_DIALOG : 0, 0);
  });
  return static_cast<int>(result);
}

/// The last message is never looked at and stays, sent or not: applications count on it.
void TQELMapiMail::DeleteSent() {
  for (int i = 0; i < FMessages->Count() - 1;) {
    bool deleted = false;
    if (FMessages->GetQELMapiMessage(i)->Sent()) {
      Guarded(this, [&] { deleted = FMessages->Delete(i); });
    }
    // One that could not be deleted is left, or this would never end.
    if (!deleted) ++i;
  }
}

void TQELMapiMail::TheRecipients(const TQELMapiMessage& message,
                                 std::vector<TQELMapiRecipient>& recipients) {
  const int to = message.RecipientsTo()->Count(), cc = message.RecipientsCC()->Count();
  vcl::TStringList lines;
  lines.AddStrings(*message.RecipientsTo());
  lines.AddStrings(*message.RecipientsCC());
  lines.AddStrings(*message.RecipientsBC());

  recipients.assign(static_cast<std::size_t>(lines.Count()), {});
  for (int i = 0; i < lines.Count(); ++i) {
    const std::string line = lines.Strings(i);
    std::string displayName;
    if (line.empty() || !Resolve(line, displayName)) continue;
    recipients[static_cast<std::size_t>(i)] = Recipient(i, to, cc, line, displayName);
  }
}

/// Has the mail program look the line up; where it finds no name or several, it asks the user.
/// False when that fails, too.
bool TQELMapiMail::Resolve(const std::string& line, std::string& displayName) {
  const auto library = Library("MAPIResolveName");
  std::string name(vcl::CutUtf8(line, MaxName));
  lpMapiRecipDesc found = nullptr;
  const auto look = [&](FLAGS flags) {
    found = nullptr;
    const ULONG result = library->ResolveName(FSession, 0, MapiText(name), flags, 0, &found);
    if (result == SUCCESS_SUCCESS && found) {
      displayName = found->lpszName ? found->lpszName : "";
      library->FreeBuffer(found);
    }
    return result;
  };
  ULONG result = SUCCESS_SUCCESS;
  Guarded(this, [&] { result = look(0); });
  if (result == MAPI_E_AMBIGUOUS_RECIPIENT || result == MAPI_E_UNKNOWN_RECIPIENT) {
    Guarded(this, [&] { result = look(MAPI_DIALOG); });
  }
  return result == SUCCESS_SUCCESS && found;
}

}  // namespace qel
