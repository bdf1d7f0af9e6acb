// TQELQuickMail: one mail by one call of Simple MAPI.
#include "qel/mail/Qeltquickmail.h"

#include "qel/mail/private/simplemapi.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace qel {
namespace {

/// How much of a text is sent.
constexpr std::size_t MaxText = 256;

std::string Cut(const std::string& text) { return std::string(vcl::CutUtf8(text, MaxText)); }

}  // namespace

const vcl::TClass& TQELQuickMail::Class() {
  using T = TQELQuickMail;
  static const vcl::TClass info = vcl::Describe<T, TQELExecComponent>(
      "qel::TQELQuickMail", "qel/mail/Qeltquickmail.h",
      {
          vcl::Property<&T::ToEmailorFaxAddress, &T::SetToEmailorFaxAddress>("ToEmailorFaxAddress"),
          vcl::Property<&T::ToName, &T::SetToName>("ToName"),
          vcl::Property<&T::TextToSend, &T::SetTextToSend>("TextToSend"),
          vcl::Property<&T::Subject, &T::SetSubject>("Subject"),
          vcl::Property<&T::MailorFax, &T::SetMailorFax>("MailorFax"),
          vcl::Property<&T::ErrorNo, &T::SetErrorNo>("ErrorNo"),
          vcl::Event<&T::BeforeSend>("BeforeSend"),
          vcl::Event<&T::OnError>("OnError"),
      });
  return info;
}

TQELQuickMail::TQELQuickMail(vcl::TComponent* owner)
    : TQELExecComponent(owner), FTextToSend(std::make_unique<vcl::TStringList>()) {}

TQELQuickMail::~TQELQuickMail() = default;

bool TQELQuickMail::Execute() {
  vcl::TWatch watch(this);
  BeforeSend(this);
  if (watch.Gone()) return true;
  const unsigned long result = Send();
  // While the library asks the user to log on, the program goes on and may free the component.
  if (watch.Gone()) return true;
  FErrorNo = std::to_string(result);
  if (result != SUCCESS_SUCCESS) OnError(this);
  return true;
}

unsigned long TQELQuickMail::Send() {
  std::string name = Cut(FToName), subject = Cut(FSubject), text = FTextToSend->Text();
  std::string address = (FMailorFax == ccFax ? "Fax:" : "smtp:") + FToEmailorFaxAddress;
  // Cut off, it would be the address of somebody else.
  if (address.size() > MaxText) return MAPI_E_INVALID_RECIPS;

  MapiRecipDesc recipient{};
  recipient.ulRecipClass = MAPI_TO;
  recipient.lpszName = MapiText(name);
  recipient.lpszAddress = MapiText(address);
  MapiMessage message{};
  message.lpszSubject = MapiText(subject);
  message.lpszNoteText = MapiText(text);
  message.flFlags = MAPI_RECEIPT_REQUESTED;
  message.nRecipCount = 1;
  message.lpRecips = &recipient;

  const auto library = TMapiLibrary::Open();
  if (!library || !library->SendMail) return MAPI_E_FAILURE;
  return library->SendMail(lhSessionNull, 0, &message, MAPI_LOGON_UI, 0);
}

}  // namespace qel
