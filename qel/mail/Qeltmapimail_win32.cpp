// TQELMapiMail: whether Simple MAPI is there, logging on with a profile, sending and logging off.
#include "qel/mail/Qeltmapimail.h"

#include "qel/mail/private/living.h"
#include "qel/mail/private/simplemapi.h"
#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/registry.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"

namespace qel {
namespace {

constexpr const char* ProfilesKey = "Software\\Microsoft\\Windows Messaging Subsystem\\Profiles";
constexpr const char* ProfilesKeyOfNT =
    "Software\\Microsoft\\Windows NT\\CurrentVersion\\Windows Messaging Subsystem\\Profiles";

}  // namespace

TQELExceptdllerror::~TQELExceptdllerror() = default;
TQELExceptunavailable::~TQELExceptunavailable() = default;
TQELExceptAttachmentError::~TQELExceptAttachmentError() = default;

const vcl::TClass& TQELMapiMail::Class() {
  using T = TQELMapiMail;
  static const vcl::TClass info = vcl::Describe<T, TQELExecComponent>(
      "qel::TQELMapiMail", "qel/mail/Qeltmapimail.h",
      {
          vcl::Property<&T::NewSession, &T::SetNewSession>("NewSession").Default(false),
          vcl::Property<&T::Messages, &T::SetMessages>("Messages"),
          vcl::Property<&T::Password, &T::SetPassword>("Password"),
          vcl::Property<&T::Profile, &T::SetProfile>("Profile"),
          vcl::Property<&T::DefaultProfile, &T::SetDefaultProfile>("DefaultProfile").Default(true),
          vcl::Property<&T::Signature, &T::SetSignature>("Signature"),
          vcl::Property<&T::DeleteAfterSend, &T::SetDeleteAfterSend>("DeleteAfterSend")
              .Default(true),
          vcl::Event<&T::BeforeLogon>("BeforeLogon"),
          vcl::Event<&T::BeforeSendAll>("BeforeSendAll"),
          vcl::Event<&T::AfterSendAll>("AfterSendAll"),
          vcl::Event<&T::BeforeLogoff>("BeforeLogoff"),
          vcl::Event<&T::AfterExecute>("AfterExecute"),
          vcl::Event<&T::OnSendError>("OnSendError"),
          vcl::Event<&T::OnLogonSuccess>("OnLogonSuccess"),
          // Of a shape that other units' events have, too, and so named here.
          vcl::Event<&T::OnLogonFailure>("OnLogonFailure")
              .Type("TQELMapiConnect", "vcl::TObject* sender, int code"),
          vcl::Event<&T::OnLogoffSuccess>("OnLogoffSuccess"),
          vcl::Event<&T::OnMapiNotAvailable>("OnMapiNotAvailable"),
          vcl::Event<&T::OnLogoffFailure>("OnLogoffFailure")
              .Type("TQELMapiConnect", "vcl::TObject* sender, int code"),
          vcl::Event<&T::BeforeSendMail>("BeforeSendMail"),
          vcl::Event<&T::AfterSendMail>("AfterSendMail"),
          vcl::Event<&T::OnDeleteMail>("OnDeleteMail"),
      });
  return info;
}

TQELMapiMail::TQELMapiMail(vcl::TComponent* owner)
    : TQELExecComponent(owner),
      FMessages(std::make_unique<TQELMapiMessages>(this)),
      FSignature(std::make_unique<vcl::TStringList>()) {}

TQELMapiMail::~TQELMapiMail() {
  try {
    if (FSession && !FLoggingOff) Logoff();
  } catch (...) {
    vcl::BaseApplication().HandleCurrentException(this);
  }
  AnnounceEnd();
}

bool TQELMapiMail::GetMAPIAvail() {
  if (!FLibrary && MapiIsInstalled()) FLibrary = TMapiLibrary::Open();
  return FLibrary != nullptr;
}

void TQELMapiMail::CheckMAPI() {
  if (GetMAPIAvail()) {
    if (FLibrary->Complete()) return;
    throw TQELExceptdllerror("GetProcAddress for MAPI DLL function(s) failed");
  }
  if (Designing()) {
    throw TQELExceptunavailable("MAPI services are not available on this system");
  }
  Guarded(this, [this] { OnMapiNotAvailable(this); });
}

std::shared_ptr<const TMapiLibrary> TQELMapiMail::Library(const char* entry) {
  if (FLibrary && FLibrary->Complete()) return FLibrary;
  throw vcl::EAccessViolation(
      vcl::Concat("Access violation: ", entry, " was called, but MAPI is not loaded"));
}

bool TQELMapiMail::Execute() {
  vcl::TWatch watch(this);
  try {
    const bool loggedOn = Logon() == SUCCESS_SUCCESS;
    if (loggedOn) {
      Guarded(this, [this] { BeforeSendAll(this); });
      SendMapi();
      Guarded(this, [this] { AfterSendAll(this); });
      Logoff();
    }
    AfterExecute(this);
    return loggedOn;
  } catch (const vcl::EAbort&) {
    if (!watch.Gone()) throw;
    return false;  // An event has freed the component.
  }
}

int TQELMapiMail::Logon() {
  CheckMAPI();
  Guarded(this, [this] { BeforeLogon(this); });
  if (FSession) return SUCCESS_SUCCESS;
  // The flags are only ever added to: what one logon needed stays for the next.
  if (FDefaultProfile) {
    TakeDefaultProfile();
  } else {
    FLogonFlags |= MAPI_LOGON_UI;
  }
  if (FNewSession) FLogonFlags |= MAPI_NEW_SESSION;

  std::string profile = FProfile, password = FPassword;
  unsigned long result = OpenSession(MapiText(profile), MapiText(password), FLogonFlags);
  if (result != SUCCESS_SUCCESS) {
    result = OpenSession(nullptr, nullptr, FLogonFlags | MAPI_LOGON_UI);
  }
  const int code = static_cast<int>(result);
  Guarded(this, [=, this] { code ? OnLogonFailure(this, code) : OnLogonSuccess(this); });
  return code;
}

void TQELMapiMail::TakeDefaultProfile() {
  vcl::TRegistry registry;
  registry.SetRootKey(HKEY_CURRENT_USER);
  const char* key = registry.KeyExists(ProfilesKeyOfNT) ? ProfilesKeyOfNT : ProfilesKey;
  if (!registry.OpenKeyReadOnly(key)) return;
  try {
    FProfile = registry.ReadString("DefaultProfile");
  } catch (const vcl::ERegistryException&) {
    FProfile.clear();
  }
}

unsigned long TQELMapiMail::OpenSession(char* profile, char* password, unsigned long flags) {
  const auto library = Library("MAPILogon");
  vcl::TWatch watch(this);
  LHANDLE session = lhSessionNull;
  const unsigned long result = library->Logon(0, profile, password, flags, 0, &session);
  if (watch.Gone()) {  // Freed while the user was asked: nobody else knows of the session.
    if (result == SUCCESS_SUCCESS) library->Logoff(session, 0, 0, 0);
    throw vcl::EAbort("The component was freed while it logged on");
  }
  if (result == SUCCESS_SUCCESS) FSession = session;
  return result;
}

int TQELMapiMail::Logoff() {
  CheckMAPI();
  Guarded(this, [this] { BeforeLogoff(this); });
  if (!FSession || FLoggingOff) return SUCCESS_SUCCESS;
  const auto library = Library("MAPILogoff");
  const vcl::TSetFor loggingOff(FLoggingOff, true, this);
  // However it ends, the session is over; only the handlers still see which one it was.
  const vcl::TAtEnd over([this] { FSession = 0; }, this);
  unsigned long result = SUCCESS_SUCCESS;
  Guarded(this, [&] { result = library->Logoff(FSession, 0, 0, 0); });
  const int code = static_cast<int>(result);
  Guarded(this, [=, this] { code ? OnLogoffFailure(this, code) : OnLogoffSuccess(this); });
  return code;
}

}  // namespace qel
