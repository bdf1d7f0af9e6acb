// The package's message dialog: its buttons and keys, its place, its countdown and kept answers.
#include <filesystem>
#include <memory>
#include <string>

#include "tests/dialogs/dialogtest.h"
#include "tests/support/registered.h"
#include "tests/support/texts.h"
#include "vcl/rtl/utf16.h"

namespace qel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testinput::TypeKey;
using vcl::TBitBtn;
using vcl::TCustomForm;

class MsgDlg : public vcl::TStandardForm {
 protected:
  MsgDlg() {
    Form.SetName("Form1");
    Dialog->SetName("Ask");
    Dialog->SetText("Save the changes?");
    Dialog->SetTitle("Notes");
    Dialog->Button1()->SetCaption("&Save");
    Dialog->Button2()->SetCaption("&Discard");
    Dialog->Button4()->SetCaption("Cancel");
    Dialog->SetCancelButton(4);
    ShowForm();
  }
  TQELMsgDlg* const Dialog = new TQELMsgDlg(&Form);
};

TEST_F(MsgDlg, KeysAndClicksAnswer) {
  const std::tuple<WORD, int, bool> keys[] = {
      {VK_RETURN, 2, true}, {VK_ESCAPE, 4, false}, {'S', 1, true}};
  Dialog->SetDefaultButton(2);
  for (const auto& [key, result, agreed] : keys) {
    EXPECT_EQ(Ask(*Dialog, Keys({key})), agreed) << key;
    EXPECT_EQ(Dialog->Result(), result) << key;
  }
  const auto click = [](TCustomForm& form) {
    EXPECT_EQ(form.Caption(), "Notes");
    EXPECT_THAT(CaptionsOf<TBitBtn>(form), ElementsAre("&Save", "&Discard", "Cancel"));
    testinput::Click(ControlsOf<TBitBtn>(form)[1]);
  };
  EXPECT_TRUE(Ask(*Dialog, click));
  EXPECT_EQ(Dialog->Result(), 2);
  EXPECT_FALSE(Ask(*Dialog, [](TCustomForm& form) { form.Close(); }));
  EXPECT_EQ(Dialog->Result(), 0);
  for (const int refused : {0, 6}) Dialog->SetDefaultButton(refused);
  for (const int refused : {-1, 6}) Dialog->SetCancelButton(refused);
  EXPECT_EQ(Dialog->DefaultButton() * 10 + Dialog->CancelButton(), 24);
  Dialog->SetCancelButton(0);
  EXPECT_FALSE(Ask(*Dialog, Keys({VK_ESCAPE}))) << "closed";
  EXPECT_EQ(Dialog->Result(), 0);
}

TEST_F(MsgDlg, IsNeverWithoutAButton) {
  Dialog->Button1()->SetCaption("");
  Dialog->Button2()->SetVisible(false);
  EXPECT_FALSE(Ask(*Dialog, [](TCustomForm& form) {
    EXPECT_THAT(CaptionsOf<TBitBtn>(form), ElementsAre("Cancel"));
    TypeKey(VK_RETURN);
  })) << "the default button is not shown: the first one stands in";
  EXPECT_EQ(Dialog->Result(), 4);
  Dialog->Button4()->SetCaption("");
  EXPECT_TRUE(Ask(*Dialog, Keys({VK_RETURN})));
  EXPECT_EQ(Dialog->Result(), 1);
}

TEST_F(MsgDlg, FillsValuesInAndCopiesAll) {
  Dialog->SetText("%s of %s: 100 %, %s");
  Dialog->Values()->Add("%s");
  Dialog->Values()->Add("2");
  EXPECT_EQ(Dialog->FilledText(), "%s of 2: 100 %, %s");
  Dialog->SetText("Grüße,\n%s");
  Ask(*Dialog, [](TCustomForm&) {
    TypeKey('C', {VK_CONTROL});
    TypeKey(VK_ESCAPE);
  });
  const std::string line = std::string(27, '-') + "\r\n";
  std::string copied = vcl::Clipboard()->AsText();
  std::erase(copied, '\r');
  std::string wanted =
      line + "Notes\n" + line + "Grüße,\n%s\n" + line + "Save   Discard   Cancel   \n" + line;
  std::erase(wanted, '\r');
  EXPECT_EQ(copied, wanted);
}

TEST_F(MsgDlg, AButtonMayAskFirst) {
  Dialog->Button2()->SetConfirmOnPress(true);
  Dialog->Button2()->SetConfirmMessage("All of them?");
  const auto refuse = [](TCustomForm& form) {
    {
      testinput::TBoxAnswer answer(IDNO);
      TypeKey('D');
      answer.Wait();
      EXPECT_EQ(answer.Text(), "All of them?");
    }
    EXPECT_EQ(form.ModalResult(), vcl::mrNone);
    testinput::TBoxAnswer answer(IDYES);
    TypeKey('D');
  };
  EXPECT_TRUE(Ask(*Dialog, refuse));
  EXPECT_EQ(Dialog->Result(), 2);
}

TEST_F(MsgDlg, CountsDownToTheDefaultButton) {
  Dialog->SetDefaultButton(2);
  Dialog->SetTimeout(1);
  Dialog->SetTimeout(-1);
  std::string caption;
  const auto look = [&](TCustomForm& form) { caption = ControlsOf<TBitBtn>(form)[1]->Caption(); };
  EXPECT_TRUE(Ask(*Dialog, look));
  EXPECT_EQ(caption, "&Discard (1)");
  EXPECT_EQ(Dialog->Result(), 2);
}

TEST_F(MsgDlg, KeepsAnswersWhereTheDeveloperLetsIt) {
  const auto file = std::filesystem::temp_directory_path() / "answers.ini";
  std::filesystem::remove(file);
  TQELDataStore& store = *Dialog->AnswerStore();
  store.SetDatatype(sIniFile);
  store.Inifile()->SetFilename(vcl::ToUtf8(file.native()));
  EXPECT_FALSE(store.Enabled());
  Ask(*Dialog, [](TCustomForm& form) {
    EXPECT_TRUE(ControlsOf<vcl::TCheckBox>(form).empty());
    TypeKey(VK_RETURN);
  });
  store.SetEnabled(true);
  const auto checked = [](TCustomForm& form) {
    EXPECT_THAT(CaptionsOf<vcl::TCheckBox>(form), ElementsAre("Do not ask again"));
    testinput::Click(ControlsOf<vcl::TCheckBox>(form).at(0));
    TypeKey('D');
  };
  EXPECT_TRUE(Ask(*Dialog, [](TCustomForm&) { TypeKey('S'); })) << "unchecked: asked again";
  EXPECT_FALSE(Ask(*Dialog, [&](TCustomForm& form) {
    testinput::Click(ControlsOf<vcl::TCheckBox>(form).at(0));
    form.Close();
  })) << "closed is no answer";
  EXPECT_TRUE(Ask(*Dialog, checked));
  EXPECT_EQ(store.ReadStr("Form1.Ask_Answer"), "2");
  TQELMsgDlg& dialog = *Dialog;
  dialog.SetDefaultButton(1);
  EXPECT_TRUE(dialog.Execute()) << "without asking";
  EXPECT_EQ(dialog.Result(), 2);
  dialog.Button2()->SetEnabled(false);
  EXPECT_TRUE(Ask(dialog, Keys({VK_RETURN}))) << "no answer any more";
  EXPECT_EQ(dialog.Result(), 1);
  dialog.Button2()->SetEnabled(true);
  for (const char* nonsense : {"9", "2x", "", "-1"}) {
    store.WriteStr("Form1.Ask_Answer", nonsense);
    EXPECT_TRUE(Ask(dialog, Keys({VK_RETURN}))) << nonsense;
  }
  store.WriteStr("Form1.Ask_Answer", "4");
  EXPECT_FALSE(dialog.Execute()) << "the cancel button was the answer";
  dialog.ForgetAnswer();
  EXPECT_TRUE(Ask(dialog, Keys({VK_RETURN})));
  std::filesystem::remove(file);
}

TEST_F(MsgDlg, StandsOverTheFormInsideTheWorkArea) {
  const vcl::TRect area = vcl::Screen()->WorkAreaRect();
  const auto place = [&](TCustomForm& form) {
    const vcl::TRect bounds = form.BoundsRect();
    EXPECT_GE(bounds.Left, area.Left);
    EXPECT_GE(bounds.Top, area.Top);
    EXPECT_LE(bounds.Right, area.Right);
    EXPECT_LE(bounds.Bottom, area.Bottom);
    for (const auto* each : ControlsOf<vcl::TControl>(form)) {
      EXPECT_GE(each->Left(), 0);
      EXPECT_LE(each->Left() + each->Width(), form.ClientWidth());
      EXPECT_LE(each->Top() + each->Height(), form.ClientHeight());
    }
    return bounds;
  };
  Ask(*Dialog, [&](TCustomForm& form) {
    const vcl::TRect bounds = place(form);
    EXPECT_NEAR(bounds.Left + bounds.Width() / 2, Form.Left() + Form.Width() / 2, 1);
    EXPECT_NEAR(bounds.Top + bounds.Height() / 2, Form.Top() + Form.Height() / 2, 1);
    TypeKey(VK_ESCAPE);
  });
  Form.SetBounds(area.Right - 20, area.Bottom - 20, 500, 400);
  std::string text;
  for (int i = 0; i < 3000; ++i) text += "words and ";
  Dialog->SetText(text);
  Ask(*Dialog, [&](TCustomForm& form) {
    place(form);
    const auto memos = ControlsOf<vcl::TMemo>(form);
    ASSERT_EQ(memos.size(), 1U) << "scrolls";
    EXPECT_TRUE(memos[0]->ReadOnly());
    TypeKey(VK_ESCAPE);
  });
}

TEST_F(MsgDlg, F1AsksForHelp) {
  std::vector<int> asked;
  Dialog->OnHelp = [&](vcl::TObject*, int context) { asked.push_back(context); };
  Ask(*Dialog, Keys({VK_F1, VK_ESCAPE}));
  Dialog->SetHelpContext(17);
  Ask(*Dialog, Keys({VK_F1, VK_ESCAPE}));
  EXPECT_THAT(asked, ElementsAre(17));
}

TEST_F(MsgDlg, OutlivesNothingThatIsFreed) {
  auto* background = new TQELBackground(&Form);
  background->SetBackgroundStyle(bSolidcolor);
  background->SetSolidColor(vcl::clRed);
  Dialog->SetBackground(background);
  Ask(*Dialog, [&](TCustomForm& form) {
    const auto reds = [&] { return form.GetFormImage()->Canvas()->Pixels(3, 3) == vcl::clRed; };
    EXPECT_TRUE(reds());
    delete background;
    EXPECT_FALSE(reds());
    TypeKey(VK_ESCAPE);
  });
  EXPECT_EQ(Dialog->Background(), nullptr);
  EXPECT_FALSE(Ask(*Dialog, [this](TCustomForm&) { delete Dialog; }));
}

TEST_F(MsgDlg, ComesBackFromAFormFile) {
  RegisterAll();
  Dialog->Button1()->SetCaption("");
  Dialog->SetCheckText("");
  Dialog->Values()->Add("one");
  const std::string text = FormText(&Form);
  EXPECT_THAT(text, HasSubstr("AnswerStore.Enabled = False"));
  vcl::TForm form(nullptr);
  ReadForm(text, &form);
  const auto* read = dynamic_cast<TQELMsgDlg*>(form.FindComponent("Ask"));
  ASSERT_TRUE(read);
  EXPECT_EQ(read->Button1()->Caption(), "");
  EXPECT_EQ(read->CheckText(), "");
  EXPECT_EQ(read->CancelButton(), 4);
  EXPECT_EQ(read->Values()->CommaText(), "one");
  EXPECT_EQ(FormText(&form), text);
}

}  // namespace
}  // namespace qel
