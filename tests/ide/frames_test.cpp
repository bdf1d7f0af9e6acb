// Frames and data modules in the designer: designed themselves, and frames on forms.
#include <gmock/gmock.h>

#include <algorithm>

#include "tests/ide/designerfixture.h"
#include "vcl/designintf/propertyeditor.h"
#include "vcl/forms/datamodule.h"
#include "vcl/forms/frames.h"

namespace ide {

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

constexpr const char* Address = R"(object AddressFrame: TAddressFrame
  Left = 0
  Top = 0
  Width = 160
  Height = 80
  TabOrder = 0
  object Street: TEdit
    Left = 8
    Top = 8
    Width = 80
    Height = 20
    TabOrder = 0
    Text = 'street'
    OnExit = StreetExit
  end
end
)";

class Frames : public UnstartedDesigner {
 protected:
  Frames() {
    Start();
    Write("address.dfm", Address);
    Write("address.h", "class TAddressFrame : public vcl::TFrame {\n};\n");
  }
  TComponent& Whole() { return Document().Root(); }
  TForm& Stage() { return Document().Stage().Form(); }
  std::string Saved(const char* name) {
    Document().Save(File(name));
    return Read(name);
  }
  TComponent* Inside(const char* frame, const char* name) {
    TComponent* found = Whole().FindComponent(frame);
    return found ? found->FindComponent(name) : nullptr;
  }
  std::unique_ptr<TPropertyEditor> Editor(TComponent* component, const char* property) {
    TPropertyEditors all = PropertiesOf(It(), {component}, [](const TPropInfo&) { return true; });
    const auto found =
        std::ranges::find_if(all, [&](const auto& each) { return each->GetName() == property; });
    return std::move(*found);
  }
};

TEST_F(Frames, AreDesignedInAWindowThatIsTheirsAndSavedAsTheyAre) {
  ASSERT_TRUE(Window->Open(File("address.dfm")));
  EXPECT_THAT(Messages(), IsEmpty());
  ASSERT_NE(dynamic_cast<TFrame*>(&Whole()), nullptr);
  EXPECT_EQ(Stage().ClientWidth(), 160);
  EXPECT_EQ(Stage().ClientHeight(), 80);
  EXPECT_EQ(Saved("address.dfm"), Address);
  auto& frame = dynamic_cast<TFrame&>(Whole());
  Pump();
  auto& street = dynamic_cast<TEdit&>(*Whole().FindComponent("Street"));
  Drag(street.ClientToScreen({5, 5}), street.ClientToScreen({5 + 16, 5 + 24}));
  EXPECT_THAT(SelectedNames(), testing::ElementsAre("Street"));
  EXPECT_EQ(street.Left(), 24);
  EXPECT_EQ(street.Top(), 32);
  Place("TButton", frame.ClientToScreen({16, 56}), frame.ClientToScreen({96, 72}));
  EXPECT_EQ(dynamic_cast<TControl&>(*Whole().FindComponent("Button1")).Parent(), &frame);
  It().Undo();
  It().Undo();
  EXPECT_EQ(Saved("address.dfm"), Address);
}

TEST_F(Frames, TakeTheSizeThatTheirWindowIsGiven) {
  ASSERT_TRUE(Window->Open(File("address.dfm")));
  Stage().SetClientWidth(200);
  ::SendMessageW(Stage().Handle(), WM_EXITSIZEMOVE, 0, 0);
  EXPECT_THAT(Saved("address.dfm"), HasSubstr("  Width = 200\n"));
  It().Undo();
  EXPECT_EQ(Stage().ClientWidth(), 160);
}

TEST_F(Frames, AreMadeNewAndOpenedAgainByTheirUnits) {
  Document().New("Panel", TFrame::Class());
  Document().Save(File("panel.dfm"));
  ASSERT_TRUE(Window->WriteUnit());
  EXPECT_THAT(Read("panel.h"), HasSubstr("class TPanel : public vcl::TFrame {"));
  EXPECT_THAT(Read("panel.cpp"), HasSubstr("TFrame(owner) { LoadFrame(); }"));
  ASSERT_TRUE(Window->Open(File("address.dfm")));
  ASSERT_TRUE(Window->Open(File("panel.dfm")));
  EXPECT_NE(dynamic_cast<TFrame*>(&Whole()), nullptr);
}

TEST_F(Frames, AreSavedWithTheUnitThatSaysWhatTheyAre) {
  Keys("Alt+F D");
  EXPECT_NE(dynamic_cast<TDataModule*>(&Whole()), nullptr);
  Keys("Alt+F M");
  EXPECT_NE(dynamic_cast<TFrame*>(&Whole()), nullptr);
  ASSERT_TRUE(Window->Open(File("address.dfm")));
  std::filesystem::remove(Folder.Path / "address.h");
  Keys("Ctrl+S");
  EXPECT_THAT(Read("address.h"), HasSubstr("class TAddressFrame : public vcl::TFrame {"));
}

TEST_F(Frames, StandOnFormsWithWhatDiffersThere) {
  OpenForm(" object B: TButton\n end\n");
  It().AddFrame(File("address.dfm"));
  EXPECT_THAT(Messages(), IsEmpty());
  auto& street = dynamic_cast<TEdit&>(*Inside("Frame1", "Street"));
  EXPECT_THAT(Document().Text(), Not(HasSubstr("Street")));
  Click(street.ClientToScreen({5, 5}));
  EXPECT_EQ(It().Selected().Components().front(), &street);
  EXPECT_TRUE(Editor(&street, "Text")->IsDefault()) << "the frame's own file says so";
  Editor(&street, "Text")->SetValue("sender");
  EXPECT_FALSE(Editor(&street, "Text")->IsDefault());
  EXPECT_THAT(Document().Text(), HasSubstr("    inherited Street: TEdit\n      Text = 'sender'\n"));
  It().Undo();
  EXPECT_EQ(dynamic_cast<TEdit&>(*Inside("Frame1", "Street")).Text(), "street");
  EXPECT_EQ(It().Selected().Components().front(), Inside("Frame1", "Street"));
  It().Redo();
  auto* again = dynamic_cast<TEdit*>(Inside("Frame1", "Street"));
  EXPECT_EQ(again->Text(), "sender");
  Editor(again, "Text")->Revert();
  EXPECT_THAT(Document().Text(), Not(HasSubstr("Street")));
  It().DeleteSelected();
  EXPECT_THAT(Messages(),
              Contains("Street is inherited from TAddressFrame and can't be deleted here"));
  EXPECT_EQ(It().NameProblem(*again, "Other"), "Street is inherited and keeps its name");
}

TEST_F(Frames, TakeNothingInAndGoWithAllTheyHold) {
  OpenForm("");
  It().AddFrame(File("address.dfm"));
  auto& frame = dynamic_cast<TFrame&>(*Whole().FindComponent("Frame1"));
  Place("TButton", frame.ClientToScreen({16, 40}), frame.ClientToScreen({96, 64}));
  EXPECT_EQ(Find("Button1")->Parent(), &Root());
  It().Selected().Only(&frame);
  It().DeleteSelected();
  EXPECT_EQ(Whole().FindComponent("Frame1"), nullptr);
  It().Undo();
  EXPECT_NE(Inside("Frame1", "Street"), nullptr);
}

TEST_F(Frames, AreFieldsOfTheirClassInTheUnitAndTheFormsHandlersAreTheForms) {
  OpenForm("");
  It().AddFrame(File("address.dfm"));
  auto* street = Inside("Frame1", "Street");
  Editor(street, "OnChange")->SetValue("StreetChanged");
  It().Modified();
  Document().Save(File("form.dfm"));
  ASSERT_TRUE(Window->WriteUnit());
  const std::string header = Read("form.h");
  EXPECT_THAT(header, HasSubstr("TAddressFrame* Frame1 = nullptr;"));
  EXPECT_THAT(header, HasSubstr("#include \"address.h\"\n"));
  EXPECT_THAT(header, HasSubstr("void StreetChanged("));
  EXPECT_THAT(header, Not(HasSubstr("StreetExit"))) << "the frame's";
}

TEST_F(Frames, AreRefusedFromElsewhereAndWhenTheyAreNone) {
  OpenForm("");
  It().AddFrame(File("form.dfm"));
  EXPECT_THAT(Messages(), Contains(HasSubstr("form.dfm: TF is no frame")));
  std::filesystem::create_directory(Folder.Path / "other");
  Write("other/address.dfm", Address);
  Write("other/address.h", "class TAddressFrame : public vcl::TFrame {\n};\n");
  It().AddFrame(File("other/address.dfm"));
  EXPECT_THAT(Messages(), Contains(HasSubstr("stands in another folder than the form")));
  Write("address.dfm", std::string("TPF0\x07", 5));
  It().AddFrame(File("address.dfm"));
  EXPECT_THAT(Messages(), Contains(HasSubstr("address.dfm is no form file, or a damaged one")));
  EXPECT_EQ(Whole().ComponentCount(), 0);
}

TEST_F(Frames, DataModulesHoldWhatIsNoControl) {
  constexpr const char* store = R"(object Store: TStore
  Left = 48
  Top = 24
  Width = 240
  Height = 180
  object Clock: TTimer
    Left = 16
    Top = 8
  end
end
)";
  Write("store.dfm", store);
  Write("store.h", "class TStore : public vcl::TDataModule {\n};\n");
  ASSERT_TRUE(Window->Open(File("store.dfm")));
  EXPECT_NE(dynamic_cast<TDataModule*>(&Whole()), nullptr);
  EXPECT_EQ(Stage().BoundsRect(), Bounds(48, 24, 240, 180));
  EXPECT_EQ(Saved("store.dfm"), store);
  Place("TButton", Stage().ClientToScreen({64, 64}), Stage().ClientToScreen({140, 90}));
  EXPECT_THAT(Messages(), Contains(HasSubstr("TButton is a control, and Store, a data module")));
  EXPECT_THROW(It().PasteText("object B: TButton\nend\n"), EComponentError);
  EXPECT_EQ(Whole().ComponentCount(), 1);
  EXPECT_EQ(Stage().ControlCount(), 0);
  Place("TPopupMenu", Stage().ClientToScreen({96, 80}), Stage().ClientToScreen({96, 80}));
  EXPECT_THAT(Document().Text(), HasSubstr("  object PopupMenu1: TPopupMenu\n    Left = 96\n"));
  It().Undo();
  Stage().SetBounds(56, 32, 200, 160);
  ::SendMessageW(Stage().Handle(), WM_EXITSIZEMOVE, 0, 0);
  EXPECT_THAT(Document().Text(),
              HasSubstr("  Left = 56\n  Top = 32\n  Width = 200\n  Height = 160\n"));
}

TEST_F(Frames, AreBroughtBackFromCopiesOfFormsWithoutAFile) {
  Document().New("Fresh", TFrame::Class());
  Document().SetCopyName(File("copy.dfm"));
  dynamic_cast<TFrame&>(Whole()).SetWidth(99);
  It().Modified();
  Document().Autosave();
  Document().New("Other");
  Document().LoadAutosaved(File("copy.dfm"));
  ASSERT_NE(dynamic_cast<TFrame*>(&Whole()), nullptr);
  EXPECT_EQ(dynamic_cast<TFrame&>(Whole()).Width(), 99);
  Document().NewInherited("Sub", File("address.dfm"));
  Document().SetCopyName(File("copy.dfm"));
  It().Modified();
  dynamic_cast<TFrame&>(Whole()).SetWidth(98);
  It().Modified();
  Document().Autosave();
  Document().New("Other");
  Document().LoadAutosaved(File("copy.dfm"));
  EXPECT_NE(Whole().FindComponent("Street"), nullptr);
  Document().DiscardAutosave();
  EXPECT_FALSE(std::filesystem::exists(Folder.Path / "copy.dfm~base"));
}

}  // namespace
}  // namespace ide
