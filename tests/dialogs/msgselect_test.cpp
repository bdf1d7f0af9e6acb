// The dialog that has one of several options chosen.
#include <string>

#include "tests/dialogs/dialogtest.h"
#include "tests/support/registered.h"

namespace qel {
namespace {

using testing::ElementsAre;
using testinput::TypeKey;
using vcl::TBitBtn;
using vcl::TCustomForm;
using vcl::TRadioButton;

class MsgSelect : public vcl::TStandardForm {
 protected:
  MsgSelect() {
    Dialog.SetText("Which of them?");
    Dialog.Options()->SetCommaText("&Red,&Green,&Blue");
    ShowForm();
  }
  TQELMsgSelect Dialog{nullptr};
};

TEST_F(MsgSelect, ChoosesARadioButtonByKeysAndMouse) {
  EXPECT_TRUE(Ask(Dialog, [](TCustomForm& form) {
    EXPECT_THAT(CaptionsOf<TRadioButton>(form), ElementsAre("&Red", "&Green", "&Blue"));
    EXPECT_TRUE(ControlsOf<TRadioButton>(form)[0]->Focused());
    TypeKey(VK_DOWN);
    TypeKey(VK_RETURN);
  }));
  EXPECT_EQ(Dialog.ItemIndex(), 1);
  EXPECT_TRUE(Ask(Dialog, Keys({'B', VK_RETURN})));
  EXPECT_EQ(Dialog.ItemIndex(), 2);
  const auto cancel = [](TCustomForm& form) {
    testinput::Click(ControlsOf<TRadioButton>(form)[0]);
    TypeKey(VK_ESCAPE);
  };
  EXPECT_FALSE(Ask(Dialog, cancel));
  EXPECT_EQ(Dialog.ItemIndex(), 2) << "as it was";
}

TEST_F(MsgSelect, WaitsForAChoiceWhereThereIsNone) {
  Dialog.SetItemIndex(-1);
  Dialog.SetItemIndex(-2);
  EXPECT_EQ(Dialog.ItemIndex(), -1);
  for (const int none : {-1, 3}) {
    Dialog.SetItemIndex(none);
    EXPECT_TRUE(Ask(Dialog, [](TCustomForm& form) {
      const TBitBtn* ok = ControlsOf<TBitBtn>(form)[0];
      EXPECT_FALSE(ok->Enabled());
      testinput::Click(ControlsOf<TRadioButton>(form)[1]);
      EXPECT_TRUE(ok->Enabled());
      testinput::Click(ok);
    }));
    EXPECT_EQ(Dialog.ItemIndex(), 1);
  }
}

TEST_F(MsgSelect, MoreThanEightOptionsAreAList) {
  Dialog.Options()->Clear();
  for (int i = 0; i < 40; ++i) Dialog.Options()->Add("Option " + std::to_string(i));
  Dialog.SetItemIndex(30);
  EXPECT_TRUE(Ask(Dialog, [](TCustomForm& form) {
    EXPECT_TRUE(ControlsOf<TRadioButton>(form).empty());
    auto* list = ControlsOf<vcl::TListBox>(form).at(0);
    EXPECT_EQ(list->ItemIndex(), 30);
    EXPECT_TRUE(list->Focused());
    TypeKey(VK_DOWN);
    TypeKey(VK_RETURN);
  }));
  EXPECT_EQ(Dialog.ItemIndex(), 31);
  while (Dialog.Options()->Count() > 8) Dialog.Options()->Delete(8);
  EXPECT_FALSE(Ask(Dialog, [](TCustomForm& form) {
    EXPECT_EQ(ControlsOf<TRadioButton>(form).size(), 8U);
    TypeKey(VK_ESCAPE);
  }));
}

TEST_F(MsgSelect, SaysWhyItShowsNothing) {
  Dialog.Options()->Clear();
  EXPECT_FALSE(Dialog.Execute());
  EXPECT_EQ(Dialog.LastError(), "There are no options to choose from");
  Dialog.Options()->Add("One");
  EXPECT_FALSE(Ask(Dialog, Keys({VK_ESCAPE})));
  EXPECT_EQ(Dialog.LastError(), "") << "cancelled";
}

}  // namespace
}  // namespace qel
