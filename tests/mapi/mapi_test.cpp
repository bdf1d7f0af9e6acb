// Mail as the mail library gets it: each call with its records, and the events between the calls.
#include "qel/mail/Qeltmapimail.h"
#include "tests/mapi/mapitest.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/formfile.h"
#include "vcl/rtl/registry.h"
#include "vcl/rtl/streams.h"

namespace {

using qel::TQELMapiMail;
using qel::TQELMapiMessage;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;
using TCalls = std::vector<std::string>;

/// The plain events, in the order of a session.
const std::pair<const char*, vcl::TNotifyEvent TQELMapiMail::*> Notices[] = {
    {"NotAvailable", &TQELMapiMail::OnMapiNotAvailable},
    {"BeforeLogon", &TQELMapiMail::BeforeLogon},
    {"LogonSuccess", &TQELMapiMail::OnLogonSuccess},
    {"BeforeSendAll", &TQELMapiMail::BeforeSendAll},
    {"AfterSendAll", &TQELMapiMail::AfterSendAll},
    {"BeforeLogoff", &TQELMapiMail::BeforeLogoff},
    {"LogoffSuccess", &TQELMapiMail::OnLogoffSuccess},
    {"AfterExecute", &TQELMapiMail::AfterExecute}};

void Say(const std::string& what) { Provider().Calls.push_back(what); }

struct MapiMail : TMapiTest {
  MapiMail() {
    Mail->SetDefaultProfile(false);
    const auto sayMail = [](const char* what) {
      return [=](vcl::TObject*, TQELMapiMessage* mail) { Say(what + mail->Subject()); };
    };
    const auto sayFailure = [](const char* what) {
      return [=](vcl::TObject*, int no) { Say(what + std::to_string(no)); };
    };
    for (const auto& [name, event] : Notices) {
      Mail.get()->*event = [text = name](vcl::TObject*) { Say(text); };
    }
    Mail->BeforeSendMail = sayMail("Before ");
    Mail->AfterSendMail = sayMail("After ");
    Mail->OnDeleteMail = sayMail("Delete ");
    Mail->OnLogonFailure = sayFailure("LogonFailure ");
    Mail->OnLogoffFailure = sayFailure("LogoffFailure ");
    Mail->OnSendError = [](vcl::TObject*, int no, TQELMapiMessage* mail) {
      Say("Error " + std::to_string(no) + ' ' + mail->Subject());
    };
  }
  TQELMapiMessage* Add(const char* subject, const char* to = "a") const {
    TQELMapiMessage* message = Mail->Messages()->Add();
    message->SetSubject(subject);
    message->RecipientsTo()->SetText(to);
    return message;
  }
  /// The calls of the one entry point.
  static TCalls Only(const std::string& entry) {
    TCalls calls = Calls();
    std::erase_if(calls, [&](const std::string& call) { return !call.starts_with(entry); });
    return calls;
  }
  std::unique_ptr<TQELMapiMail> Mail = std::make_unique<TQELMapiMail>(nullptr);
};

TEST_F(MapiMail, IsHandedOverWithEveryFieldInOneSession) {
  const TWorkFolder folder("mapi");
  WriteFile("ünï.txt", "x");
  const std::string file = (folder.Path() / "").string() + "\xC3\xBCn\xC3\xAF.txt";
  Mail->SetProfile("Ann");
  Mail->SetPassword("pass");
  Mail->Signature()->SetText("-- \nAnn");
  TQELMapiMessage* message = Add("Grüße", "Bob\n\nnobody");
  message->Message()->SetText("one\ntwo");
  message->RecipientsCC()->SetText("Cy");
  message->RecipientsBC()->SetText("[smtp:d@x.test]\nEve");
  message->Attachments()->Add(file);
  message->Attachments()->Add("C:\\is\\not\\there.txt");
  message->Attachments()->Add(folder.Path().string());
  message->SetReceipt(true);
  Provider().Names = {{"Bob", "Bob Smith"}, {"[smtp:d@x.test]", "Dee"}};
  Provider().Results["Resolve"] = {0, 14, 14, 21, 0, 0, 2};
  EXPECT_TRUE(Mail->Execute());
  EXPECT_THAT(
      Calls(),
      ElementsAre("BeforeLogon", "Logon 0 'Ann' 'pass' 1 0", "LogonSuccess", "BeforeSendAll",
                  "Before Grüße", "Resolve 7 0 'Bob' 0 0", "Resolve 7 0 'nobody' 0 0",
                  "Resolve 7 0 'nobody' 8 0", "Resolve 7 0 'Cy' 0 0", "Resolve 7 0 'Cy' 8 0",
                  "Resolve 7 0 '[smtp:d@x.test]' 0 0", "Resolve 7 0 'Eve' 0 0",
                  "Send 7 0 0 0 {0 'Grüße' '   \rone\r\ntwo\r\n-- \r\nAnn\r\n' - - - 2 - 6"
                  " {0 1 'Bob Smith' - 0 -} {0 0 - - 0 -} {0 0 - - 0 -} {0 2 'Cy' - 0 -}"
                  " {0 2 'smtp:d@x.test' 'smtp:d@x.test' 0 -} {0 0 - - 0 -}"
                  " 3 {0 0 -1 '" +
                      file + "' 'ünï.txt' -} {0 0 -1 '' '' -} {0 0 -1 '' '' -}}",
                  "After Grüße", "AfterSendAll", "BeforeLogoff", "Logoff 7 0 0 0", "LogoffSuccess",
                  "AfterExecute"));
  EXPECT_TRUE(message->Sent());
  EXPECT_THAT(Loads, ElementsAre("mapi32 32769"));
  EXPECT_NE(::GetErrorMode(), 32769u);
}

TEST_F(MapiMail, LogsOnWithFlagsThatStayAndAsksTheUserWhenThatFails) {
  Provider().Results = {{"Logon", {0, 3, 1, 3, 0}}, {"Logoff", {0, 2}}};
  EXPECT_EQ(Mail->Logon(), 0);
  EXPECT_EQ(Mail->Logon(), 0) << "the session is open";
  EXPECT_EQ(Mail->Session(), 7u);
  EXPECT_EQ(Mail->Logoff(), 0);
  EXPECT_EQ(Only("Logo"),
            (TCalls{"Logon 0 '' '' 1 0", "LogonSuccess", "Logoff 7 0 0 0", "LogoffSuccess"}));
  Mail->SetNewSession(true);
  EXPECT_FALSE(Mail->Execute());
  EXPECT_EQ(Calls(), (TCalls{"BeforeLogon", "Logon 0 '' '' 3 0", "Logon 0 - - 3 0",
                             "LogonFailure 1", "AfterExecute"}));
  Mail->SetNewSession(false);
  Mail->SetDefaultProfile(true);
  EXPECT_EQ(Mail->Logon(), 0);
  EXPECT_EQ(Mail->Logoff(), 2);
  EXPECT_EQ(Mail->Logoff(), 0);
  EXPECT_EQ(Calls(), (TCalls{"BeforeLogon", "Logon 0 '' '' 3 0", "Logon 0 - - 3 0", "LogonSuccess",
                             "BeforeLogoff", "Logoff 7 0 0 0", "LogoffFailure 2", "BeforeLogoff"}));
  Mail->Logon();
  Calls();
  Mail = nullptr;
  EXPECT_EQ(Calls(), (TCalls{"BeforeLogoff", "Logoff 7 0 0 0", "LogoffSuccess"}));
}

TEST_F(MapiMail, TheSessionIsClearedBehindTheEventsOfLoggingOff) {
  std::vector<std::uintptr_t> seen;
  Mail->OnLogoffSuccess = [&](vcl::TObject*) {
    seen.push_back(Mail->Session());
    Mail->Logoff();
  };
  Mail->Logon();
  EXPECT_EQ(Mail->Logoff(), 0);
  EXPECT_THAT(seen, ElementsAre(7u)) << "told once of the session that it was";
  EXPECT_EQ(Mail->Session(), 0u);
  Mail->OnLogoffSuccess = [](vcl::TObject*) { throw vcl::EInvalidOperation("a handler's"); };
  Mail->Logon();
  EXPECT_THROW(Mail->Logoff(), vcl::EInvalidOperation);
  EXPECT_EQ(Mail->Session(), 0u);
  Mail->OnLogoffSuccess = [&](vcl::TObject*) { Mail = nullptr; };
  Mail->Logon();
  Calls();
  EXPECT_THROW(Mail->Logoff(), vcl::EAbort);
  EXPECT_THAT(Only("Logoff "), ElementsAre("Logoff 7 0 0 0")) << "freed by its handler";
}

TEST_F(MapiMail, TakesTheProfileOfTheRegistry) {
  const std::string plain = "\\Software\\Microsoft\\Windows Messaging Subsystem";
  const std::string nt =
      "\\Software\\Microsoft\\Windows NT\\CurrentVersion\\Windows Messaging Subsystem";
  vcl::TRegistry registry;
  Mail->SetDefaultProfile(true);
  const auto profile = [&] {
    Mail->SetProfile("mine");
    Mail->Logon();
    Mail->Logoff();
    return Mail->Profile();
  };
  EXPECT_EQ(profile(), "mine");
  registry.OpenKey(plain + "\\Profiles", true);
  EXPECT_EQ(profile(), "");
  registry.WriteString("DefaultProfile", "older");
  EXPECT_EQ(profile(), "older");
  registry.OpenKey(nt + "\\Profiles", true);
  registry.WriteString("DefaultProfile", "newer");
  EXPECT_EQ(profile(), "newer");
  EXPECT_EQ(Only("Logon 0").back(), "Logon 0 'newer' '' 0 0");
  Provider().Results["Logon"] = {3};
  Calls();
  profile();
  profile();
  EXPECT_EQ(Only("Logon "),
            (TCalls{"Logon 0 'newer' '' 0 0", "Logon 0 - - 1 0", "Logon 0 'newer' '' 0 0"}));
  registry.WriteInteger("DefaultProfile", 1);
  EXPECT_EQ(profile(), "");
  registry.DeleteKey(plain);
  registry.DeleteKey(nt);
}

TEST_F(MapiMail, ClassesOfAddressesInBracketsReachOneLineFurther) {
  struct {
    const char *Line, *Known, *Expected;
  } const table[] = {
      {"a", "A", "{0 1 'A' - 0 -} {0 2 'A' - 0 -} {0 3 'A' - 0 -}"},
      {"[a", "A", "{0 1 'A' - 0 -} {0 2 'A' - 0 -} {0 3 'A' - 0 -}"},
      {"[a]", "[A", "{0 1 '[A' - 0 -} {0 2 '[A' - 0 -} {0 3 '[A' - 0 -}"},
      {"x]a][[", "A", "{0 1 'xa][' 'xa][' 0 -} {0 1 'xa][' 'xa][' 0 -} {0 2 'xa][' 'xa][' 0 -}"}};
  TQELMapiMessage* message = Add("");
  for (const auto& each : table) {
    for (vcl::TStrings* list :
         {message->RecipientsTo(), message->RecipientsCC(), message->RecipientsBC()}) {
      list->SetText(each.Line);
    }
    Provider().Names = {{each.Line, each.Known}};
    Mail->SendMapi();
    EXPECT_THAT(Only("Send"),
                ElementsAre(HasSubstr(" - 3 " + std::string(each.Expected) + " 0 -}")));
  }
  message->RecipientsTo()->SetText(std::string(254, 'n') + "ö");
  Mail->SendMapi();
  EXPECT_EQ(Only("Resolve")[0], "Resolve 0 0 '" + std::string(254, 'n') + "' 0 0");
  std::vector<qel::TQELMapiRecipient> recipients{{3, "former", "former"}};
  Provider().Results["Resolve"] = {2};
  Mail->TheRecipients(*message, recipients);
  EXPECT_EQ(recipients[0].RecipClass, 0) << "what is not known is empty";
}

TEST_F(MapiMail, ShowsTheDialogWhereToldOrWithoutRecipients) {
  Add("none", "");
  Add("told")->SetDialog(true);
  Add("line", "\n");
  Mail->SendMapi();
  EXPECT_THAT(Only("Send"),
              ElementsAre("Send 0 0 8 0 {0 'none' '\r' - - - 0 - 0 - 0 -}",
                          StartsWith("Send 0 0 8 0 {0 'told'"),
                          "Send 0 0 0 0 {0 'line' '\r' - - - 0 - 1 {0 0 - - 0 -} 0 -}"));
}

TEST_F(MapiMail, StopsAtOneThatIsTooLargeAndDeletesNothing) {
  Add("first");
  TQELMapiMessage* large = Add("large", "");
  for (int i = 0; i < 100; ++i) large->Attachments()->Add("x");
  for (int i = 0; i < 1000; ++i) large->RecipientsBC()->Add("");
  Mail->SetDeleteAfterSend(false);
  EXPECT_EQ(Mail->SendMapi(), 0);
  Mail->SetDeleteAfterSend(true);
  large->Attachments()->Add("x");
  EXPECT_EQ(Mail->SendMapi(), 9);
  Mail->BeforeSendMail = [&](auto*, TQELMapiMessage* message) {
    if (message == large) large->RecipientsTo()->Add("");
  };
  EXPECT_EQ(Mail->SendMapi(), 10) << "as the handler has left it";
  EXPECT_FALSE(large->Sent());
  EXPECT_EQ(Only("After"), (TCalls{"After first", "After large", "After first", "After first"}));
  EXPECT_EQ(Mail->Messages()->Count(), 2);
}

TEST_F(MapiMail, DeletesWhatWasSentButTheLast) {
  for (const char* subject : {"1", "2", "3", "4", "5"}) Add(subject);
  Provider().Results["Send"] = {0, 0, 18, 0, 9};
  EXPECT_EQ(Mail->SendMapi(), 9);
  EXPECT_EQ(Mail->Messages()->Count(), 2);
  Mail->OnDeleteMail = [](vcl::TObject*, TQELMapiMessage*) { throw vcl::Exception("keep it"); };
  EXPECT_EQ(Mail->SendMapi(), 0);
  EXPECT_EQ(Mail->Messages()->Count(), 2);
  EXPECT_THAT(Application.Errors, ElementsAre("keep it"));
  EXPECT_EQ(Only("Delete"), (TCalls{"Delete 1", "Delete 2", "Delete 4"}));
}

TEST_F(MapiMail, GoesOnAfterWhatGoesWrongWithOne) {
  for (const char* subject : {"raises", "ends", "ends inside", "good"}) Add(subject);
  Mail->BeforeSendMail = [](vcl::TObject*, TQELMapiMessage* message) {
    const auto end = [=] { delete message; };
    if (message->Subject() == "raises") throw vcl::Exception("no!");
    if (message->Subject() == "ends inside") Provider().During["Resolve"] = end;
    if (message->Subject() == "ends") end();
  };
  EXPECT_EQ(Mail->SendMapi(), 0);
  EXPECT_THAT(Only("After"), ElementsAre("After good"));
  const auto gone = StartsWith("The mail was deleted");
  EXPECT_THAT(Application.Errors, ElementsAre("no!", gone, gone));
}

TEST_F(MapiMail, MayBeFreedByAnyEventAndInAnyDialog) {
  TQELMapiMail* mail = nullptr;
  const auto free = [&] { delete std::exchange(mail, nullptr); };
  const auto freed = [&](const std::string& when) {
    mail->Messages()->Add()->RecipientsTo()->Add("a");
    mail->Execute();
    EXPECT_EQ(mail, nullptr) << when;
  };
  for (const auto& [name, event] : Notices) {
    if (event == &TQELMapiMail::OnMapiNotAvailable) continue;
    mail = new TQELMapiMail(nullptr);
    mail->*event = [&](vcl::TObject*) { free(); };
    freed(name);
  }
  for (const char* entry : {"Logon", "Resolve", "Send", "Logoff"}) {
    mail = new TQELMapiMail(nullptr);
    Provider().During[entry] = free;
    freed(entry);
  }
  // Whatever had logged on logged off: all but the one that was freed before.
  EXPECT_THAT(Only("Logoff "), testing::SizeIs(std::size(Notices) - 2 + 4));
}

TEST_F(MapiMail, SaysThatThereIsNoneAndThenFails) {
  HasLibrary = false;
  Add("x");
  EXPECT_FALSE(Mail->GetMAPIAvail());
  EXPECT_THAT(Loads, ElementsAre("mapi32 32769", "mapi32.dll 32769"));
  EXPECT_THROW(Mail->Execute(), vcl::EAccessViolation);
  EXPECT_EQ(Calls(), (TCalls{"NotAvailable", "BeforeLogon"}));
  EXPECT_EQ(Mail->SendMapi(), 0);
  EXPECT_THAT(Application.Errors, ElementsAre(StartsWith("Access violation: MAPIResolveName")));
  EXPECT_EQ(Mail->Logoff(), 0);
  EXPECT_EQ(Calls(), (TCalls{"NotAvailable", "Before x", "NotAvailable", "BeforeLogoff"}));
  Mail->SetDesigning(true);
  EXPECT_THROW(Mail->Execute(), qel::TQELExceptunavailable);
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(MapiMail, NeedsAllOfTheInterface) {
  static std::string missing;
  const TImportPatch entries(
      "qel.dll", "GetProcAddress", +[](HMODULE module, LPCSTR name) WINAPI -> FARPROC {
        return missing == name ? nullptr : ::GetProcAddress(module, name);
      });
  for (const char* entry : {"FindNext", "Logoff", "Logon", "SendMail", "ReadMail", "DeleteMail",
                            "ResolveName", "FreeBuffer", "Address", "SaveMail"}) {
    missing = std::string("MAPI") + entry;
    TQELMapiMail mail(nullptr);
    EXPECT_THROW(mail.Execute(), qel::TQELExceptdllerror) << entry;
    EXPECT_TRUE(mail.GetMAPIAvail());
  }
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(MapiMail, ComesBackFromAFormFileAndSendsWhatItHolds) {
  const std::string text = R"(object Mail: TQELMapiMail
  NewSession = True
  Messages = <
    item
      Message.Strings = (
        'one'
        '')
      Attachments = <
        item
          Filename = 'C:\ä b.txt'
        end
        item
          Filename = ''
        end>
      Subject = 'It''s'
      RecipientsTo.Strings = (
        'Ann'
        '[smtp:b@x.test]')
      RecipientsCC.Strings = (
        'Cy')
      RecipientsBC.Strings = (
        'Di')
      Receipt = True
      Dialog = True
    end
    item
      Subject = ''
    end>
  Password = 'pass'
  Profile = 'Ann'
  DefaultProfile = False
  Signature.Strings = (
    '-- '
    'Ann')
  DeleteAfterSend = False
end
)";
  const auto write = [](TQELMapiMail& mail) {
    vcl::TMemoryStream file;
    vcl::WriteComponentText(file, &mail);
    file.SetPosition(0);
    return file.ReadRest();
  };
  TQELMapiMail read(nullptr), copy(nullptr);
  vcl::TMemoryStream file;
  file.WriteText(text);
  file.SetPosition(0);
  vcl::ReadComponentFile(file, &read);
  EXPECT_EQ(write(read), text);
  copy.SetMessages(read.Messages());
  const auto messages = text.find("  Messages");
  EXPECT_THAT(write(copy), HasSubstr(text.substr(messages, text.find("  Password") - messages)));
  EXPECT_TRUE(read.Execute());
  EXPECT_EQ(Only("Send 7 0 8 0 {0 'It's' '  \rone\r\n\r\n-- \r\nAnn\r\n' - - - 2 - 4").size(), 1u);
}

/// What a system says of itself: its version, the registry's value and its settings file's, and
/// whether it has MAPI then.
const struct TSystem {
  unsigned long Major, Minor;
  std::wstring Value;
  LSTATUS Status;
  unsigned Setting;
  bool Expected;
} Systems[] = {{4, 0, {L"1\0", 2}, 0, 0, true},   {10, 0, L"1", 0, 0, true},
               {3, 52, L"1", 0, 0, true},         {4, 0, {L"0\0", 2}, 0, 1, false},
               {4, 0, {L"10\0", 3}, 0, 1, false}, {4, 0, L"1", ERROR_MORE_DATA, 1, false},
               {4, 0, L"", 0, 1, false},          {4, 0, L"", ERROR_FILE_NOT_FOUND, 1, false},
               {3, 51, L"1", 0, 0, false},        {3, 51, L"", 0, 1, true}};
const TSystem* System = Systems;

TEST_F(MapiMail, IsThereWhereTheSystemSaysSo) {
  const TImportPatch version(
      "qel.dll", "GetVersionExW", +[](OSVERSIONINFOW* info) WINAPI -> BOOL {
        info->dwMajorVersion = System->Major;
        info->dwMinorVersion = System->Minor;
        return TRUE;
      });
  const TImportPatch value(
      "qel.dll", "RegQueryValueExW",
      +[](HKEY, LPCWSTR, DWORD*, DWORD*, BYTE* data, DWORD* size) WINAPI -> LSTATUS {
        const std::size_t room = *size / sizeof(wchar_t);
        *size = static_cast<DWORD>(System->Value.copy(reinterpret_cast<wchar_t*>(data), room) *
                                   sizeof(wchar_t));
        return System->Status;
      });
  const TImportPatch setting(
      "qel.dll", "GetProfileIntW",
      +[](LPCWSTR, LPCWSTR, INT) WINAPI -> UINT { return System->Setting; });
  for (const auto& each : Systems) {
    System = &each;
    EXPECT_EQ(TQELMapiMail(nullptr).GetMAPIAvail(), each.Expected) << System - Systems;
  }
}

}  // namespace
