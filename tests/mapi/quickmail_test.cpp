// A quick mail as the mail library gets it.
#include "qel/mail/Qeltmapimail.h"
#include "qel/mail/Qeltquickmail.h"
#include "tests/mapi/mapitest.h"

namespace {

using testing::ElementsAre;

struct QuickMail : TMapiTest {
  QuickMail() {
    Mail->SetSubject("Hi");
    Mail->TextToSend()->SetText("one\n\ntwo");
    Mail->BeforeSend = [](vcl::TObject*) { Provider().Calls.push_back("BeforeSend"); };
    Mail->OnError = [this](vcl::TObject*) { Provider().Calls.push_back(Mail->ErrorNo()); };
  }
  std::unique_ptr<qel::TQELQuickMail> Mail = std::make_unique<qel::TQELQuickMail>(nullptr);
};

TEST_F(QuickMail, AsksForAReceiptAndForALogonAndTellsFailuresByTheirNumbers) {
  const std::string n255(255, 'n'), a251(251, 'a');
  const struct {
    std::string Name, Address, Recipient;  // The recipient as it is sent, or none.
    qel::TQELFaxorMail Type;
    unsigned long Result;
    std::string Error;
  } table[] = {{"Jörg", "j@x.test", "'Jörg' 'smtp:j@x.test'", qel::ccMail, 0, "0"},
               {"", "+1 2", "'' 'Fax:+1 2'", qel::ccFax, 1, "1"},
               {"", "", "'' 'smtp:'", qel::ccMail, 26, "26"},
               {n255 + "ö", a251, "'" + n255 + "' 'smtp:" + a251 + "'", qel::ccMail, 0, "0"},
               {"", a251 + "a", "", qel::ccMail, 0, "25"}};
  for (const auto& each : table) {
    Mail->SetToName(each.Name);
    Mail->SetToEmailorFaxAddress(each.Address);
    Mail->SetMailorFax(each.Type);
    Provider().Results["Send"] = {each.Result};
    std::vector<std::string> expected = {"BeforeSend"};
    if (!each.Recipient.empty()) {
      expected.push_back("Send 0 0 1 0 {0 'Hi' 'one\r\n\r\ntwo\r\n' - - - 2 - 1 {0 1 " +
                         each.Recipient + " 0 -} 0 -}");
    }
    if (each.Error != "0") expected.push_back(each.Error);
    EXPECT_TRUE(Mail->Execute());
    EXPECT_EQ(Calls(), expected);
    EXPECT_EQ(Mail->ErrorNo(), each.Error);
  }
  HasLibrary = false;
  Mail->SetToEmailorFaxAddress({});
  EXPECT_TRUE(Mail->Execute());
  EXPECT_THAT(Calls(), ElementsAre("BeforeSend", "2"));
}

TEST_F(QuickMail, MayBeFreedWhileItIsSent) {
  Provider().During["Send"] = [&] { Mail = nullptr; };
  EXPECT_TRUE(Mail->Execute());
}

/// What Wine's own library makes of the records: parameters for the program that the user mails
/// with.
TEST(SystemsOwnLibrary, PassesTheMailOn) {
  static std::vector<std::string> passed;
  const TTestApplication application;
  qel::TQELMapiMail mail(nullptr);
  ASSERT_TRUE(mail.GetMAPIAvail());
  ASSERT_TRUE(::GetModuleHandleA("winemapi.dll")) << "no other library is in the tests' own prefix";
  const TImportPatch patch(
      "winemapi.dll", "ShellExecuteA",
      +[](HWND, LPCSTR, LPCSTR, LPCSTR parameters, LPCSTR, INT) WINAPI {
        passed.push_back(parameters);
        return reinterpret_cast<HINSTANCE>(std::intptr_t{33});
      });
  mail.Messages()->Add()->SetSubject("To whom?");
  EXPECT_TRUE(mail.Execute());
  EXPECT_TRUE(mail.Messages()->GetQELMapiMessage(0)->Sent());
  qel::TQELQuickMail quick(nullptr);
  quick.SetToEmailorFaxAddress("bob@x.test");
  quick.SetSubject("Grüße");
  quick.TextToSend()->Add("one two");
  quick.Execute();
  EXPECT_EQ(quick.ErrorNo(), "0");
  EXPECT_THAT(passed,
              ElementsAre("mailto:\"\"?subject=\"To%20whom%3F\"&cc=\"\"&bcc=\"\"&body=\"%0D\"",
                          "mailto:\"bob@x.test\"?subject=\"Gr%FC%DFe\"&cc=\"\"&bcc=\"\""
                          "&body=\"one%20two%0D%0A\""));
}

}  // namespace
