// The dialog that asks for passwords: typing, checking, pauses, and that nothing is left of them.
#include <memory>
#include <string>

#include "tests/dialogs/dialogtest.h"
#include "tests/support/registered.h"
#include "tests/support/testclocks.h"
#include "tests/support/texts.h"

namespace qel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testinput::TypeKey;
using vcl::TCustomEdit;
using vcl::TCustomForm;

class PasswordDlg : public vcl::TStandardForm {
 protected:
  PasswordDlg() {
    Form.SetName("Form1");
    Dialog->SetName("Password1");
    Dialog->SetTitle("Log in");
    ShowForm();
  }
  void Check(const std::string& right) {
    Dialog->OnCheck = [this, right](vcl::TObject*, bool& ok) {
      EXPECT_FALSE(ok) << "nobody has said so";
      Checked.push_back(Dialog->Username() + "/" + Dialog->Password());
      ok = Dialog->Password() == right;
    };
  }
  /// Types each of the texts into the next edit, and Enter.
  void Enter(const std::vector<std::string>& texts) {
    for (std::size_t i = 0; i < texts.size(); ++i) {
      if (i > 0) TypeKey(VK_TAB);
      Type(texts[i]);
    }
    TypeKey(VK_RETURN);
  }
  static bool Says(const TCustomForm& form, const std::string& text) {
    return std::ranges::any_of(CaptionsOf<vcl::TLabel>(form), [&](const std::string& caption) {
      return caption.find(text) != std::string::npos;
    });
  }
  static bool CanAgree(const TCustomForm& form) {
    return ControlsOf<vcl::TBitBtn>(form)[0]->Enabled();
  }
  TTestClocks Clocks;
  TQELPasswordDlg* Dialog = new TQELPasswordDlg(&Form);
  std::vector<std::string> Checked;
};

TEST_F(PasswordDlg, AsksForANameAndAPassword) {
  Check("secret1");
  EXPECT_TRUE(Ask(*Dialog, [&](TCustomForm& form) {
    EXPECT_THAT(CaptionsOf<vcl::TBitBtn>(form), ElementsAre("OK", "Cancel", "&Show"));
    Enter({"ann", "secret1"});
  }));
  EXPECT_THAT(Checked, ElementsAre("ann/secret1"));
  EXPECT_EQ(Dialog->Username(), "ann");
  EXPECT_EQ(Dialog->Password(), "") << "wiped after use";
  EXPECT_FALSE(Ask(*Dialog, [&](TCustomForm& form) {
    EXPECT_TRUE(ControlsOf<TCustomEdit>(form)[1]->Focused()) << "the name is known";
    TypeKey('U', {VK_MENU});
    Enter({"bob", "no"});
    TypeKey(VK_ESCAPE);
  }));
  EXPECT_EQ(Dialog->Username(), "ann") << "as it was";
  EXPECT_EQ(Dialog->LastError(), "") << "cancelled";
}

TEST_F(PasswordDlg, LeavesThePasswordToWhoChecksIt) {
  Dialog->SetKind(pkPassword);
  EXPECT_TRUE(Ask(*Dialog, [&](TCustomForm&) { Enter({"abc"}); }));
  EXPECT_EQ(Dialog->Password(), "abc");
  Dialog->ForgetPassword();
  EXPECT_EQ(Dialog->Password(), "");
  EXPECT_FALSE(Ask(*Dialog, [&](TCustomForm&) {
    Type("abc");
    TypeKey(VK_ESCAPE);
  }));
  EXPECT_EQ(Dialog->Password(), "");
}

TEST_F(PasswordDlg, PausesLongerAfterEachFailure) {
  Check("right");
  Dialog->SetKind(pkPassword);
  Dialog->SetMaxTries(0);
  EXPECT_TRUE(Ask(*Dialog, [&](TCustomForm& form) {
    for (const int pause : {1, 2, 4, 8, 16, 30, 30}) {
      Enter({"wrong"});
      EXPECT_TRUE(Says(form, "The password is wrong. Wait for " + std::to_string(pause) + " s."));
      EXPECT_FALSE(CanAgree(form));
      EXPECT_EQ(ControlsOf<TCustomEdit>(form)[0]->Text(), "") << "to be typed anew";
      Clocks.Pass(pause);
      EXPECT_TRUE(testinput::PumpUntil([&] { return CanAgree(form); })) << pause;
      EXPECT_FALSE(Says(form, "Wait"));
    }
    Enter({"right"});
  }));
  EXPECT_EQ(Checked.size(), 8U);
}

TEST_F(PasswordDlg, ClosesAfterTooManyTriesAndGoesOnPausing) {
  Check("right");
  Dialog->SetMaxTries(2);
  Dialog->SetMaxTries(-1);
  Dialog->SetUsername("ann");
  EXPECT_FALSE(Ask(*Dialog, [&](TCustomForm&) {
    Enter({"one"});
    Clocks.Pass(1);
    testinput::PumpFor(200);
    Enter({"two"});
  }));
  EXPECT_EQ(Dialog->LastError(), "The password was wrong 2 times");
  EXPECT_EQ(Dialog->Password(), "");
  EXPECT_TRUE(Ask(*Dialog, [&](TCustomForm& form) {
    EXPECT_TRUE(Says(form, "Wait for 2 s."));
    Enter({"right"});
    EXPECT_EQ(Checked.size(), 2U) << "not while it pauses";
    Clocks.Pass(2);
    EXPECT_TRUE(testinput::PumpUntil([&] { return CanAgree(form); }));
    TypeKey(VK_RETURN);
  }));
  EXPECT_EQ(Dialog->LastError(), "");
  EXPECT_THAT(Checked, ElementsAre("ann/one", "ann/two", "ann/right"));
}

TEST_F(PasswordDlg, ChangesAPassword) {
  std::string changed;
  Dialog->SetKind(pkChange);
  Dialog->SetMinLength(4);
  Dialog->OnCheck = [&](vcl::TObject*, bool& ok) {
    changed = Dialog->Password() + ">" + Dialog->NewPassword();
    ok = true;
  };
  EXPECT_TRUE(Ask(*Dialog, [&](TCustomForm& form) {
    Enter({"old", "newer", "never"});
    EXPECT_TRUE(Says(form, Dialog->MismatchText()));
    Enter({"old", "new", "new"});
    EXPECT_TRUE(Says(form, "at least 4 characters"));
    EXPECT_TRUE(CanAgree(form)) << "no wrong password";
    EXPECT_EQ(changed, "");
    Enter({"old", "newer", "newer"});
  }));
  EXPECT_EQ(changed, "old>newer");
  EXPECT_EQ(Dialog->Password() + Dialog->NewPassword(), "");
  Dialog->OnCheck = nullptr;
  Dialog->SetOldPasswordLabel("");
  EXPECT_TRUE(Ask(*Dialog, [&](TCustomForm&) { Enter({"first", "first"}); }));
  EXPECT_EQ(Dialog->NewPassword(), "first");
}

TEST_F(PasswordDlg, ShowsWhatIsTypedOnlyWhenAskedAndCopiesItNever) {
  Dialog->SetKind(pkPassword);
  vcl::Clipboard()->SetAsText("before");
  Ask(*Dialog, [&](TCustomForm& form) {
    TCustomEdit& edit = *ControlsOf<TCustomEdit>(form)[0];
    const auto copy = [&] {
      edit.SelectAll();
      TypeKey('C', {VK_CONTROL});
      TypeKey('X', {VK_CONTROL});
      TypeKey(VK_INSERT, {VK_CONTROL});
      TypeKey(VK_DELETE, {VK_SHIFT});
      EXPECT_EQ(vcl::Clipboard()->AsText(), "before");
      edit.CopyToClipboard();
      EXPECT_EQ(vcl::Clipboard()->AsText(), "before");
    };
    Type("hidden1");
    copy();
    EXPECT_NE(edit.PasswordChar(), 0U);
    testinput::Click(ControlsOf<vcl::TBitBtn>(form)[2]);
    EXPECT_EQ(edit.PasswordChar(), 0U) << "shown";
    edit.SetFocus();
    copy();
    EXPECT_EQ(edit.Text(), "hidden1") << "nor is it cut";
    vcl::TAccessibleInfo info;
    edit.DescribeAccessible(info);
    EXPECT_EQ(info.Value, "");
    EXPECT_TRUE(info.State.Has(vcl::asProtected));
    ControlsOf<vcl::TBitBtn>(form)[1]->SetFocus();
    TypeKey('C', {VK_CONTROL});
    EXPECT_THAT(vcl::Clipboard()->AsText(), HasSubstr("Log in"));
    EXPECT_THAT(vcl::Clipboard()->AsText(), Not(HasSubstr("hidden1")));
    TypeKey(VK_ESCAPE);
  });
}

TEST_F(PasswordDlg, WarnsOfLockedCapitals) {
  Ask(*Dialog, [&](TCustomForm& form) {
    EXPECT_FALSE(Says(form, "Caps Lock"));
    TypeKey(VK_CAPITAL);
    EXPECT_TRUE(testinput::PumpUntil([&] { return Says(form, "Caps Lock is on."); }));
    TypeKey(VK_CAPITAL);
    EXPECT_TRUE(testinput::PumpUntil([&] { return !Says(form, "Caps Lock"); }));
    TypeKey(VK_ESCAPE);
  });
}

TEST_F(PasswordDlg, ForgetsWhenACheckFails) {
  Dialog->SetKind(pkPassword);
  Dialog->OnCheck = [](vcl::TObject*, bool&) { throw vcl::Exception("no server"); };
  EXPECT_FALSE(Ask(*Dialog, [&](TCustomForm& form) {
    Enter({"abc"});
    EXPECT_EQ(std::exchange(Errors, ""), "no server");
    EXPECT_EQ(Dialog->Password(), "");
    EXPECT_TRUE(CanAgree(form)) << "no wrong password";
    TypeKey(VK_ESCAPE);
  }));
  Dialog->OnCheck = [this](vcl::TObject*, bool& ok) {
    ok = true;
    delete Dialog;
  };
  EXPECT_FALSE(Ask(*Dialog, [&](TCustomForm&) { Enter({"abc"}); }));
}

TEST_F(PasswordDlg, HasNoPasswordInItsFormFile) {
  RegisterAll();
  Dialog->SetKind(pkPassword);
  Ask(*Dialog, [&](TCustomForm&) { Enter({"abcdef"}); });
  ASSERT_EQ(Dialog->Password(), "abcdef");
  Dialog->SetMinLength(8);
  Dialog->PeekButton()->SetCaption("");
  const std::string text = FormText(&Form);
  EXPECT_THAT(text, Not(HasSubstr("abcdef")));
  vcl::TForm form(nullptr);
  ReadForm(text, &form);
  EXPECT_EQ(FormText(&form), text);
  auto* read = dynamic_cast<TQELPasswordDlg*>(form.FindComponent("Password1"));
  EXPECT_EQ(read->MinLength() * 10 + read->Kind(), 81);
  EXPECT_FALSE(Ask(*read, [](TCustomForm& shown) {
    EXPECT_EQ(ControlsOf<vcl::TBitBtn>(shown).size(), 2U) << "nothing to peek with";
    TypeKey(VK_ESCAPE);
  }));
}

}  // namespace
}  // namespace qel
