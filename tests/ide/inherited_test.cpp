// Forms that descend from others, and frames, in the designer: opened, changed, reverted, saved.
#include <gmock/gmock.h>

#include <algorithm>

#include "tests/ide/designerfixture.h"
#include "vcl/designintf/propertyeditor.h"
#include "vcl/forms/frames.h"

namespace ide {

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

constexpr const char* Base = R"(object BaseForm: TBaseForm
  Left = 40
  Top = 30
  Caption = 'base'
  ClientHeight = 200
  ClientWidth = 300
  object Ok: TButton
    Left = 8
    Top = 40
    Width = 75
    Height = 25
    Caption = 'OK'
    Font.Name = 'Tahoma'
    ParentFont = False
    TabOrder = 0
    OnClick = OkClick
  end
  object Title: TLabel
    Left = 8
    Top = 8
    Width = 60
    Height = 13
    Caption = 'Title'
  end
end
)";

constexpr const char* Order = R"(inherited OrderForm: TOrderForm
  Caption = 'order'
  inherited Ok: TButton
    Caption = 'Order'
  end
  object Amount: TEdit
    Left = 100
    Top = 40
    Width = 60
    Height = 20
    TabOrder = 1
    Text = ''
  end
end
)";

class InheritedForm : public UnstartedDesigner {
 protected:
  InheritedForm() {
    Start();
    Write("base.dfm", Base);
    Write("base.h", "class TBaseForm : public vcl::TForm {\n};\n");
    Write("order.dfm", Order);
    Write("order.h", "class TOrderForm final : public TBaseForm {\n};\n");
  }
  std::string Saved() {
    Document().Save(File("order.dfm"));
    return Read("order.dfm");
  }
  std::unique_ptr<TPropertyEditor> Editor(const char* component, const char* property) {
    TPropertyEditors all = PropertiesOf(It(), {Root().FindComponent(component)},
                                        [](const TPropInfo&) { return true; });
    const auto found =
        std::ranges::find_if(all, [&](const auto& each) { return each->GetName() == property; });
    EXPECT_NE(found, all.end()) << property;
    return std::move(*found);
  }
};

TEST_F(InheritedForm, IsOpenedOnTopOfItsAncestorAndSavedAsTheDifference) {
  ASSERT_TRUE(Window->Open(File("order.dfm")));
  EXPECT_THAT(Messages(), IsEmpty());
  EXPECT_EQ(Root().Caption(), "order");
  EXPECT_EQ(Root().ClientWidth(), 300);
  EXPECT_EQ(Find("Ok")->Left(), 8);
  EXPECT_NE(Find("Title"), nullptr);
  EXPECT_EQ(Saved(), Order);
  Find("Title")->SetLeft(20);
  It().Modified();
  EXPECT_THAT(Saved(), HasSubstr("  inherited Title: TLabel\n    Left = 20\n  end\n"));
  It().Undo();
  EXPECT_EQ(Find("Title")->Left(), 8);
  EXPECT_EQ(Saved(), Order);
}

TEST_F(InheritedForm, MarksAndRevertsWhatDiffers) {
  ASSERT_TRUE(Window->Open(File("order.dfm")));
  EXPECT_TRUE(Editor("Ok", "Left")->IsDefault()) << "no default of the class, but inherited";
  EXPECT_TRUE(Editor("Ok", "Font")->IsDefault());
  EXPECT_TRUE(Editor("Ok", "OnClick")->IsDefault());
  EXPECT_FALSE(Editor("Amount", "Left")->IsDefault()) << "new here";
  EXPECT_FALSE(Editor("Ok", "Caption")->IsDefault());
  ASSERT_TRUE(Editor("Ok", "Caption")->CanRevert());
  Editor("Ok", "Caption")->Revert();
  EXPECT_EQ(Find<TButton>("Ok")->Caption(), "OK");
  Editor("Ok", "OnClick")->SetValue("");
  EXPECT_FALSE(Editor("Ok", "OnClick")->IsDefault());
  EXPECT_THAT(Saved(), HasSubstr("  inherited Ok: TButton\n    OnClick = nil\n  end\n"));
  Editor("Ok", "OnClick")->Revert();
  EXPECT_THAT(Saved(), Not(HasSubstr("inherited Ok")));
}

TEST_F(InheritedForm, IsRevertedByTheInspectorsMenu) {
  ASSERT_TRUE(Window->Open(File("order.dfm")));
  Click(MiddleOf(Find("Ok")));
  const int caption = LineOf("Caption");
  EXPECT_FALSE(Grid().Row(caption).Default);
  KeysInMenuAt(InLine(caption, Grid().Splitter() / 2), "R");
  EXPECT_TRUE(PumpUntil([&] { return Find<TButton>("Ok")->Caption() == "OK"; }));
  EXPECT_EQ(Grid().PopupMenu()->Items()->Items(0)->Caption(), "&Revert to Inherited")
      << "what was pressed";
  EXPECT_THAT(Saved(), Not(HasSubstr("inherited Ok")));
}

TEST_F(InheritedForm, KeepsWhatIsInherited) {
  ASSERT_TRUE(Window->Open(File("order.dfm")));
  It().Selected().Only(Find("Ok"));
  It().DeleteSelected();
  EXPECT_NE(Find("Ok"), nullptr);
  EXPECT_THAT(Messages(),
              Contains(HasSubstr("Ok is inherited from TBaseForm and can't be deleted here")));
  EXPECT_EQ(It().NameProblem(*Find("Ok"), "Other"), "Ok is inherited and keeps its name");
  EXPECT_EQ(It().NameProblem(*Find("Amount"), "Other"), "");
  It().Selected().Only(Find("Amount"));
  It().DeleteSelected();
  EXPECT_EQ(Find("Amount"), nullptr);
}

TEST_F(InheritedForm, FollowsWhatItsOpenAncestorIsSavedWith) {
  ASSERT_TRUE(Window->Open(File("order.dfm")));
  TFormDesigner& order = It();
  const auto in = [&](const char* name) {
    return dynamic_cast<TControl*>(order.Root().FindComponent(name));
  };
  in("Amount")->SetLeft(120);
  order.Modified();
  ASSERT_TRUE(Window->Open(File("base.dfm")));
  ASSERT_NE(&It(), &order);
  Find("Ok")->SetLeft(30);
  Find<TButton>("Ok")->SetCaption("Base");
  auto* added = new TLabel(&Root());
  added->SetName("Added");
  added->SetParent(&Root());
  It().Modified();
  EXPECT_EQ(in("Ok")->Left(), 8) << "not before it is saved";
  TypeKey('S', {VK_CONTROL});
  EXPECT_EQ(in("Ok")->Left(), 30);
  EXPECT_EQ(dynamic_cast<TButton*>(in("Ok"))->Caption(), "Order") << "its own";
  EXPECT_NE(in("Added"), nullptr);
  EXPECT_EQ(in("Amount")->Left(), 120);
  EXPECT_TRUE(order.Document().Modified());
  order.Undo();
  EXPECT_EQ(in("Amount")->Left(), 100);
  EXPECT_EQ(in("Ok")->Left(), 30) << "that is no step of its own";
  EXPECT_FALSE(order.Document().Modified());
  EXPECT_EQ(order.Document().Text(), Order);

  // Of two of one name the descendant's own gets another one, and says so.
  added->SetName("Amount");
  Find("Ok")->SetLeft(50);
  It().Modified();
  TypeKey('S', {VK_CONTROL});
  EXPECT_THAT(Messages(), Contains(HasSubstr("Amount")));
  EXPECT_EQ(in("Ok")->Left(), 50);
  EXPECT_NE(dynamic_cast<TLabel*>(in("Amount")), nullptr);
  EXPECT_NE(in("Edit1"), nullptr);
}

TEST_F(InheritedForm, FollowsTheFramesThatItHas) {
  Write("part.dfm",
        "object PartFrame: TPartFrame\n Width = 100\n Height = 50\n object Inner: TButton\n"
        " Left = 5\n end\nend\n");
  Write("part.h", "class TPartFrame : public vcl::TFrame {\n};\n");
  OpenForm(
      " inline Part: TPartFrame\n Left = 10\n Top = 10\n inherited Inner: TButton\n"
      " Top = 7\n end\n end\n");
  TFormDesigner& user = It();
  const auto inner = [&] {
    return dynamic_cast<TControl*>(user.Root().FindComponent("Part")->FindComponent("Inner"));
  };
  ASSERT_TRUE(Window->Open(File("part.dfm")));
  dynamic_cast<TControl&>(*Document().Root().FindComponent("Inner")).SetLeft(9);
  It().Modified();
  TypeKey('S', {VK_CONTROL});
  EXPECT_EQ(inner()->Left(), 9);
  EXPECT_EQ(inner()->Top(), 7);
  EXPECT_FALSE(user.Document().Modified());
}

TEST_F(InheritedForm, SaysWhatIsMissing) {
  std::filesystem::remove(Folder.Path / "base.dfm");
  EXPECT_FALSE(Window->Open(File("order.dfm")));
  EXPECT_THAT(Messages(), Contains(HasSubstr("TOrderForm needs the form file of TBaseForm")));
  std::filesystem::remove(Folder.Path / "order.h");
  EXPECT_FALSE(Window->Open(File("order.dfm")));
  EXPECT_THAT(Messages(), Contains(HasSubstr("its unit says from which")));
  Write("order.h", "class TOrderForm : public TOrderForm {\n};\n");
  EXPECT_FALSE(Window->Open(File("order.dfm")));
  EXPECT_THAT(Messages(), Contains(HasSubstr("TOrderForm descends from itself")));
}

TEST_F(InheritedForm, SaysWhichAncestorIsDamaged) {
  Write("base.dfm", "object BaseForm: TBaseForm\n  Caption = \nend\n");
  EXPECT_FALSE(Window->Open(File("order.dfm")));
  EXPECT_THAT(Messages(), Contains(HasSubstr("base.dfm")));
  Write("base.dfm", std::string("TPF0\x09", 5));
  EXPECT_FALSE(Window->Open(File("order.dfm")));
  EXPECT_THAT(Messages(), Contains(HasSubstr("; base.dfm is damaged")));
  Write("base.dfm", "object BaseForm: TBaseForm\nend\n");
  ASSERT_TRUE(Window->Open(File("order.dfm")));
  EXPECT_THAT(Messages(), Contains(HasSubstr("there is no inherited component Ok")))
      << "what the file says of it is kept";
  EXPECT_THAT(Saved(), HasSubstr("  inherited Ok: TButton\n    Caption = 'Order'\n"));
}

TEST_F(InheritedForm, IsMadeNewWithItsUnit) {
  Document().NewInherited("Sub", File("order.dfm"));
  EXPECT_EQ(Document().Text(), "inherited Sub: TSub\nend\n");
  auto* added = new TButton(&Root());
  added->SetName("Extra");
  added->SetParent(&Root());
  added->OnClick.SetHandlerName("ExtraClick");
  It().Modified();
  Document().Save(File("sub.dfm"));
  ASSERT_TRUE(Window->WriteUnit());
  EXPECT_THAT(Read("sub.h"), HasSubstr("#include \"order.h\"\n"));
  EXPECT_THAT(Read("sub.h"), HasSubstr("class TSub : public TOrderForm {"));
  EXPECT_THAT(Read("sub.h"), Not(HasSubstr("Amount")));
  EXPECT_THAT(Read("sub.h"), Not(HasSubstr("OkClick")));
  EXPECT_THAT(Read("sub.h"), HasSubstr("void ExtraClick("));
  EXPECT_THAT(Read("sub.cpp"),
              HasSubstr("TOrderForm(vcl::InheritedBy<TSub>(owner)) { LoadForm(); }"));
  ASSERT_TRUE(Window->Open(File("base.dfm")));
  ASSERT_TRUE(Window->Open(File("sub.dfm")));
  EXPECT_NE(Find("Amount"), nullptr) << "two files stand in front";
}

TEST_F(InheritedForm, ShowsFramesAsTheirFilesHaveThem) {
  Write("address.dfm", R"(object AddressFrame: TAddressFrame
  Width = 100
  Height = 60
  object Street: TEdit
    Left = 2
    Top = 2
    Width = 80
    Height = 21
    Text = 'street'
    TabOrder = 0
  end
end
)");
  const std::string form = R"(object F: TF
  Left = 40
  Top = 30
  Caption = ''
  ClientHeight = 200
  ClientWidth = 300
  inline Sender: TAddressFrame
    Left = 10
    Top = 20
    Width = 120
    TabOrder = 0
    inherited Street: TEdit
      Text = 'sender'
    end
  end
  inline Lost: TLostFrame
    Left = 10
    Top = 100
    Width = 50
    Height = 40
    inherited Nothing: TEdit
      Text = 'kept'
    end
  end
end
)";
  Write("form.dfm", form);
  ASSERT_TRUE(Window->Open(File("form.dfm")));
  const auto* frame = dynamic_cast<TFrame*>(Root().FindComponent("Sender"));
  ASSERT_NE(frame, nullptr);
  EXPECT_EQ(frame->Height(), 60);
  EXPECT_EQ(dynamic_cast<TEdit&>(*frame->FindComponent("Street")).Text(), "sender");
  EXPECT_THAT(Messages(), Contains(HasSubstr("needs the form file of TLostFrame")));
  EXPECT_EQ(Document().Text(), form);
  Root().SetCaption("changed");
  It().Modified();
  It().Undo();
  EXPECT_EQ(Document().Text(), form) << "the states of undo hold the frame as well";
}

}  // namespace
}  // namespace ide
