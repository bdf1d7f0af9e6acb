// Form files that are right: what is written, what is read, and that the two forms are the same.
#include <gmock/gmock.h>

#include "tests/rtl/samples.h"

using namespace vcl;
using namespace samples;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace {

class FormFile : public testing::Test, TSampleTest {};

/// A form as it is written, with a value of every kind.
constexpr const char* Complete = R"(object Form1: TSampleForm
  Tag = 7
  Caption = 'It''s '#9'a "form"'
  AnyLink = Owner
  Style.Size = 12
  Style.Color = 12632257
  Style.Data = {
    000102030405060708090A0B0C0D0E0F101112131415161718191A1B1C1D1E1F
    2021}
  Lines.Strings = (
    'one'
    ''
    #228#10)
  Items = <
    item
      Title = 'first'
      Link = Part2
      Style.Color = clRed
      OnPick = PartClick
    end
    item
      Style.Size = -1
      Style.Color = clBlack
    end>
  OnKey = PartKey
  object Part1: TPart
    Count = 2147483647
    Active = False
    Ratio = 0.1
    Mask = '*'
    Shape = shStar
    Shapes = [shRound, shStar]
    Code = coFirst
    Color = clWindow
    Big = -9223372036854775808
    Link = Part2
    Style.Color = clBlack
    OnClick = PartClick
    object Part2: TPart
      Ratio = 2.0
      Mask = #13
      Shapes = []
      Code = 5
      Color = 255
      Link = Part1
      AnyLink = Other1
      Style.Color = clBlack
    end
  end
  object Other1: TOther
    Left = 40
    Top = -3
  end
end
)";

std::unique_ptr<TSampleForm> LoadForm(const std::string& form) {
  return std::unique_ptr<TSampleForm>(static_cast<TSampleForm*>(ReadForm(form)));
}

/// What the file itself, written back, does not tell.
TEST_F(FormFile, IsReadAsItSays) {
  const auto form = LoadForm(Complete);
  ASSERT_NE(form->Part1, nullptr);
  const TPart& part1 = *form->Part1;
  const auto* part2 = static_cast<TPart*>(form->FindComponent("Part2"));
  EXPECT_EQ(form->Caption(), "It's \ta \"form\"");
  EXPECT_EQ(form->AnyLink(), form.get());
  EXPECT_EQ(form->Style()->Color(), 12632257);
  EXPECT_EQ(form->Style()->Blob.size(), 34u);
  EXPECT_EQ(form->Style()->Blob.back(), '\x21');
  EXPECT_EQ(form->Lines()->Text(), "one\r\n\r\n\xC3\xA4\n\r\n");
  ASSERT_EQ(form->Items()->Count(), 2);
  auto* first = static_cast<TPartItem*>(form->Items()->Items(0));
  EXPECT_EQ(first->Title(), "first");
  EXPECT_EQ(first->Link(), part2);
  EXPECT_EQ(part1.Shapes(), (TSet{shRound, shStar}));
  EXPECT_EQ(part1.Link(), part2);
  EXPECT_EQ(part1.ParentPart(), form.get());
  EXPECT_EQ(part2->ParentPart(), &part1);
  EXPECT_EQ(part2->Owner(), form.get());
  EXPECT_EQ(part2->Mask(), U'\r');
  EXPECT_TRUE(part2->Shapes().Empty());
  EXPECT_EQ(part2->Color(), clRed);
  EXPECT_EQ(part2->AnyLink(), form->Other1);
  EXPECT_FALSE(form->Loading());
  form->Part1->OnClick(form->Part1);
  EXPECT_EQ(form->Clicked, form->Part1);
  first->OnPick(form.get());
  EXPECT_EQ(form->Clicked, form.get());
  int key = 5;
  form->OnKey(nullptr, key);
  EXPECT_EQ(key, -5);
  EXPECT_FALSE(part2->ComponentState().Has(csReading));
}

TEST_F(FormFile, KnowsTheClassesOfTheRootsFields) {
  UnRegisterClass(TOther::Class());
  TSampleForm form(nullptr);
  ReadForm("object Form1: TSampleForm object Other1: TOther end end", &form);
  EXPECT_NE(form.Other1, nullptr);
  TPart other(nullptr);
  EXPECT_THROW(ReadForm("object P: TPart object Other1: TOther end end", &other), EClassNotFound);
}

TEST_F(FormFile, NamesHandlersOnlyWhileDesigning) {
  TPart root(nullptr);
  root.SetDesigning(true);
  ReadForm("object Form1: TForm1 OnClick = Unheard object P: TPart OnKey = Of end end", &root);
  EXPECT_FALSE(root.OnClick.Assigned());
  EXPECT_EQ(root.OnClick.HandlerName(), "Unheard");
  EXPECT_TRUE(root.FindComponent("P")->Designing());
  EXPECT_THAT(FormText(&root), HasSubstr("OnKey = Of"));
}

TEST_F(FormFile, IsWrittenAsItWasRead) {
  std::string text = Complete;
  // Characters behind ASCII stand as themselves, and so does a colour's name.
  text.replace(text.find("#228#10"), 7, "'\xC3\xA4'#10");
  text.replace(text.find("Color = 255"), 11, "Color = clRed");
  const auto form = LoadForm(Complete);
  EXPECT_THAT(TPart::LoadedNames, ElementsAre("Form1", "Part1", "Part2")) << "root first, once";
  EXPECT_EQ(FormText(form.get()), text);
  EXPECT_EQ(BinaryToText(TextToBinary(text)), text);
  EXPECT_EQ(TextToBinary(text), ToBinary(*form));
  EXPECT_EQ(FormText(LoadForm(ToBinary(*form)).get()), text);
}

TEST_F(FormFile, HoldsOnlyWhatDiffersFromTheDefault) {
  TPart root(nullptr);
  TPart unnamed(&root);
  EXPECT_EQ(FormText(&root), "object TPart\n  Style.Color = clBlack\nend\n");
  root.SetLink(&unnamed);  // A reference without a name can't be written.
  TStringStream stream;
  WriteComponentText(stream, &root, "TForm1");
  EXPECT_EQ(stream.DataString(), "object TForm1\n  Style.Color = clBlack\nend\n");
}

TEST_F(FormFile, KnowsSystemColoursByEitherNumber) {
  for (const char* number : {"-2147483633", "$8000000F", "-16777201", "$FF00000F", "clBtnFace"}) {
    const std::unique_ptr<TComponent> part(
        ReadForm(Concat("object P: TPart Color = ", number, " end")));
    EXPECT_EQ(dynamic_cast<TPart&>(*part).Color(), clBtnFace) << number;
    EXPECT_THAT(FormText(part.get()), Not(HasSubstr("  Color"))) << number << " is the default";
  }
}

TEST_F(FormFile, AcceptsOtherSpellings) {
  const std::pair<const char*, const char*> cases[] = {
      {"Count=$1f", "Count = 31"},
      {"COUNT = -$1", "COUNT = -1"},
      {"Ratio = 1e3", "Ratio = 1000.0"},
      {"Ratio = -1.5E-3", "Ratio = -0.0015"},
      {"Caption = 'a' +\r\n 'b' + #67#9", "Caption = 'abC'#9"},
      {"Caption = #128512", "Caption = '\xF0\x9F\x98\x80'"},
      {"Caption = #55357#56832", "Caption = '\xF0\x9F\x98\x80'"},
      {"Caption = ''", "Caption = ''"},
      {"Caption = ''''", "Caption = ''''"},
      {"Shapes = [ ]", "Shapes = []"},
      {"Items = < >", "Items = <>"},
      {"X = (1 (2 'a') nil True)", "X = (\n    1\n    (\n      2\n      'a')\n    nil\n    True)"},
      {"Data = { }", "Data = {}"},
      {"Link = Form2.Part1", "Link = Form2.Part1"},
  };
  for (const auto& [source, printed] : cases) {
    const std::string text = Concat("\xEF\xBB\xBFObject A:TPart\r\n", source, "\r\nEND");
    EXPECT_EQ(BinaryToText(TextToBinary(text)), Concat("object A: TPart\n  ", printed, "\nend\n"));
  }
}

TEST_F(FormFile, KeepsAnyBytesOfAStringAndBreaksLongOnesBetweenCharacters) {
  std::string characters, bytes;
  for (int i = 0; i < 100; ++i) characters += i % 3 == 0 ? "\xE2\x82\xAC" : "x'";
  for (int i = 0; i < 512; ++i) bytes += static_cast<char>(i);
  for (const std::string& caption : {characters, bytes}) {
    TPart root(nullptr);
    root.SetCaption(caption);
    const std::string text = FormText(&root);
    EXPECT_THAT(text, HasSubstr(" +\n"));
    std::unique_ptr<TComponent> again(ReadForm(text));
    EXPECT_EQ(static_cast<TPart&>(*again).Caption(), caption);
  }
}

TEST_F(FormFile, ChangesInheritedComponents) {
  const auto form = LoadForm("object F: TSampleForm object Part1: TPart Count = 1 end end");
  TPart* part = form->Part1;
  ReadForm("inherited F: TSampleForm inherited Part1: TPart [4] Ratio = 3 end end", form.get());
  EXPECT_EQ(form->Part1, part);
  EXPECT_EQ(form->ComponentCount(), 1);
  EXPECT_EQ(part->Count(), 1);
  EXPECT_EQ(part->Ratio(), 3);
  EXPECT_EQ(part->Order, 4);
}

TEST_F(FormFile, FindsOtherFormsOfTheOwner) {
  TComponent application(nullptr);
  auto* first = new TSampleForm(&application);
  ReadForm("object F: TSampleForm object Part1: TPart end end", first);
  auto* second = new TSampleForm(&application);
  ReadForm("object G: TSampleForm Link = F.Part1 AnyLink = Owner end", second);
  EXPECT_EQ(second->Link(), first->Part1);
  EXPECT_EQ(second->AnyLink(), second);
  EXPECT_THAT(FormText(second), HasSubstr("  Link = F.Part1\n  AnyLink = Owner\n"));
}

TEST_F(FormFile, ShowsTheSameFormTwiceUnderTwoNames) {
  TComponent application(nullptr);
  const std::string text = "object F: TSampleForm Link = F.Part1 object Part1: TPart end end";
  auto* first = new TSampleForm(&application);
  ReadForm(text, first);
  auto* second = new TSampleForm(&application);
  ReadForm(text, second);
  EXPECT_EQ(second->Name(), "F_1");
  EXPECT_EQ(second->Link(), second->Part1);
  EXPECT_EQ(first->Link(), first->Part1);
}

TEST_F(FormFile, PastesCopiesUnderFreeNames) {
  const auto form = LoadForm(Complete);
  TStringStream copied;
  WriteComponentsText(copied, {form->Part1, form->Other1}, form.get());
  copied.SetPosition(0);
  std::vector<TComponent*> pasted;
  ReadComponentsInto(copied, form.get(), form.get(), [&](TComponent* c) { pasted.push_back(c); });
  ASSERT_EQ(pasted.size(), 2u);
  const auto& part = static_cast<TPart&>(*pasted[0]);
  EXPECT_EQ(part.Name(), "Part3");
  EXPECT_EQ(part.Link()->Name(), "Part4");
  EXPECT_EQ(part.Link()->Link(), &part);
  EXPECT_EQ(pasted[1]->Name(), "Other2");
  EXPECT_EQ(part.ParentPart(), form.get());
}

TEST_F(FormFile, IsReadFromAndLeavesTheStreamInPlace) {
  TStringStream stream("xx" + TextToBinary("object A: TPart end") + "yy");
  stream.SetPosition(2);
  TReader reader(stream);
  std::unique_ptr<TComponent> root(reader.ReadRootComponent(nullptr));
  EXPECT_EQ(reader.RootClassName(), "TPart");
  EXPECT_EQ(stream.ReadRest(), "yy");
}

TEST_F(FormFile, RefusesToWriteWhatItCannotRead) {
  TPart root(nullptr);
  TStringStream stream;
  root.SetRatio(std::numeric_limits<double>::infinity());
  EXPECT_THROW(WriteComponentBinary(stream, &root), EWriteError);
  root.SetRatio(1);
  root.SetShape(static_cast<TShape>(3));
  EXPECT_THROW(WriteComponentText(stream, &root), EWriteError);
  EXPECT_EQ(stream.Size(), 0);
  EXPECT_FALSE(root.ComponentState().Has(csWriting));
}

}  // namespace
