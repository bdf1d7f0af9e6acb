// What the property editors show and change.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/plaindesigner.h"
#include "vcl/designintf/standardeditors.h"
#include "vcl/vcl.h"

namespace vcl {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::ThrowsMessage;

class PropertyEditor : public testing::Test {
 protected:
  template <class T>
  T* Add(const char* name) {
    T* made = new T(&Designer.Form);
    made->SetName(name);
    return made;
  }

  std::unique_ptr<TPropertyEditor> Editor(const char* property, std::vector<TObject*> objects) {
    TEditedProperties edited;
    for (TObject* each : objects) {
      edited.push_back({each, each->ClassType().FindPublished(property)});
    }
    return MakePropertyEditor(Designer, std::move(edited));
  }

  TPlainDesigner Designer;
};

std::vector<std::string> Names(const TPropertyEditors& editors) {
  std::vector<std::string> names;
  for (const auto& each : editors) names.push_back(each->GetName());
  return names;
}

TPropertyEditor& Inside(const TPropertyEditors& editors, std::string_view name) {
  for (const auto& each : editors) {
    if (each->GetName() == name) return *each;
  }
  throw EPropertyError(std::string(name));
}

std::vector<std::string> Values(const TPropertyEditor& editor) {
  std::vector<std::string> values;
  editor.GetValues([&](const std::string& value) { values.push_back(value); });
  return values;
}

TEST_F(PropertyEditor, TakesTextsAndRefusesOthers) {
  auto* panel = Add<TPanel>("Panel1");
  auto* item = Add<TMenuItem>("Item1");
  const struct {
    TObject* Object;
    const char* Property;
    const char* Text;
    const char* Shown;
    const char* Wrong;
  } cases[] = {
      {panel, "Width", "$20", "32", "wide"},
      {panel, "Align", "altop", "alTop", "alSide"},
      {panel, "Visible", "false", "False", "maybe"},
      {panel, "Color", "clred", "clRed", "red"},
      {panel, "Cursor", "crcross", "crCross", "99999"},
      {panel, "Name", "Other", "Other", "1a"},
      {item, "ShortCut", "ctrl+s", "Ctrl+S", "Ctrl+Nothing"},
      {item, "ShortCut", "", "(None)", "?+"},
  };
  for (const auto& each : cases) {
    const auto editor = Editor(each.Property, {each.Object});
    editor->SetValue(each.Text);
    EXPECT_EQ(editor->GetValue(), each.Shown) << each.Property;
    const int before = Designer.Modifications;
    EXPECT_THAT([&] { editor->SetValue(each.Wrong); },
                ThrowsMessage<Exception>(HasSubstr(each.Wrong)));
    EXPECT_EQ(editor->GetValue(), each.Shown) << each.Property;
    EXPECT_EQ(Designer.Modifications, before);
  }
  EXPECT_EQ(Designer.Modifications, 8);
  EXPECT_THROW(Editor("Name", {panel})->SetValue(""), EComponentError);
}

TEST_F(PropertyEditor, ChangesAllObjectsOrNone) {
  auto* list = Add<TListBox>("List1");
  Designer.Form.SetBorderStyle(bsSingle);
  list->SetBorderStyle(bsNone);
  const auto editor = Editor("BorderStyle", {&Designer.Form, list});
  EXPECT_FALSE(editor->AllEqual());
  EXPECT_EQ(editor->ShownValue(), "");
  EXPECT_THROW(editor->SetValue("bsSizeable"), EPropertyError);  // The list box does.
  EXPECT_EQ(Designer.Form.BorderStyle(), bsSingle);
  EXPECT_EQ(list->BorderStyle(), bsNone);
  EXPECT_EQ(Designer.Modifications, 0);
  editor->SetValue("bsNone");
  EXPECT_EQ(editor->ShownValue(), "bsNone");
  EXPECT_EQ(Designer.Modifications, 1);
}

TEST_F(PropertyEditor, SeveralObjectsShareWhatAllHave) {
  auto* button = Add<TButton>("Button1");
  auto* memo = Add<TMemo>("Memo1");
  const auto names = Names(PropertiesOf(Designer, {button, memo},
                                        [](const TPropInfo& each) { return !each.IsEvent(); }));
  EXPECT_THAT(names, Contains("Font"));
  EXPECT_THAT(names, testing::Not(Contains("Caption")));
  EXPECT_THAT(names, testing::Not(Contains("Name"))) << "is one component's";
  EXPECT_THAT(names, testing::Not(Contains("OnClick")));
}

TEST_F(PropertyEditor, ElementsOfSetsChangeAlone) {
  auto* first = Add<TButton>("Button1");
  auto* second = Add<TButton>("Button2");
  first->Font()->SetStyle({fsBold});
  const auto style = Editor("Style", {first->Font(), second->Font()});
  const auto elements = style->GetProperties();
  EXPECT_THAT(Names(elements), ElementsAre("fsBold", "fsItalic", "fsUnderline", "fsStrikeOut"));
  EXPECT_THAT(Values(*elements[0]), ElementsAre("False", "True"));
  EXPECT_EQ(elements[0]->ShownValue(), "");
  elements[1]->SetValue("true");
  EXPECT_EQ(first->Font()->Style(), (TFontStyles{fsBold, fsItalic}));
  EXPECT_EQ(second->Font()->Style(), (TFontStyles{fsItalic}));
  style->SetValue("[fsunderline]");
  EXPECT_EQ(style->ShownValue(), "[fsUnderline]");
}

TEST_F(PropertyEditor, NestedPropertiesReachTheOwner) {
  auto* first = Add<TPanel>("Panel1");
  auto* second = Add<TPanel>("Panel2");
  const auto font = Editor("Font", {first, second});
  EXPECT_TRUE(font->ReadOnly());
  Inside(font->GetProperties(), "Size").SetValue("20");
  EXPECT_EQ(second->Font()->Size(), 20);
  EXPECT_FALSE(second->ParentFont()) << "the panel has heard of it";
  EXPECT_TRUE(font->AllEqual());
  first->Font()->SetSize(9);
  EXPECT_FALSE(font->AllEqual());
}

TEST_F(PropertyEditor, KnowsDefaultsAndGoesBackToThem) {
  auto* first = Add<TPanel>("Panel1");
  auto* second = Add<TPanel>("Panel2");
  const auto align = Editor("Align", {first, second});
  EXPECT_TRUE(align->IsDefault());
  second->SetAlign(alTop);
  EXPECT_FALSE(align->IsDefault());
  align->Revert();
  EXPECT_EQ(second->Align(), alNone);
  const auto width = Editor("Width", {first});
  EXPECT_FALSE(width->IsDefault());
  EXPECT_FALSE(width->CanRevert());
  EXPECT_THROW(width->Revert(), EPropertyError);
}

TEST_F(PropertyEditor, APartStandsOpen) {
  auto* edit = Add<TLabeledEdit>("Edit1");
  const auto part = Editor("EditLabel", {edit});
  EXPECT_TRUE(part->Offers(paSubProperties));
  EXPECT_TRUE(part->ReadOnly());
  Inside(part->GetProperties(), "Caption").SetValue("Street");
  EXPECT_EQ(edit->EditLabel()->Caption(), "Street");
  EXPECT_FALSE(part->IsDefault());
}

TEST_F(PropertyEditor, AMaskHasADialogAndIsReadBeforeItIsTaken) {
  auto* edit = Add<TMaskEdit>("Edit1");
  const auto mask = Editor("EditMask", {edit});
  EXPECT_TRUE(mask->Offers(paDialog));
  EXPECT_THROW(mask->SetValue("00;0;ab"), EMaskError);
  EXPECT_EQ(edit->EditMask(), "");
}

TEST_F(PropertyEditor, ListsHoldTheirLinesTogether) {
  auto* first = Add<TListBox>("List1");
  auto* second = Add<TListBox>("List2");
  const auto items = Editor("Items", {first, second});
  EXPECT_TRUE(items->IsDefault());
  first->Items()->Add("One");
  EXPECT_FALSE(items->AllEqual());
  EXPECT_FALSE(items->IsDefault());
  items->Revert();
  EXPECT_EQ(first->Items()->Count(), 0);
  EXPECT_EQ(Designer.Modifications, 1);
}

TEST_F(PropertyEditor, ReferencesAreNamesOfComponentsThatFit) {
  auto* menu = Add<TPopupMenu>("Menu1");
  auto* button = Add<TButton>("Button1");
  const auto editor = Editor("PopupMenu", {button});
  EXPECT_THAT(Values(*editor), ElementsAre("Menu1"));
  editor->SetValue("menu1");
  EXPECT_EQ(button->PopupMenu(), menu);
  for (const char* wrong : {"Button1", "Menu2"}) {
    EXPECT_THAT([&] { editor->SetValue(wrong); }, ThrowsMessage<EConvertError>(HasSubstr(wrong)));
  }
  EXPECT_EQ(editor->GetValue(), "Menu1");
  editor->SetValue("");
  EXPECT_EQ(button->PopupMenu(), nullptr);
}

TEST_F(PropertyEditor, EventsMakeRenameAndShareHandlers) {
  auto* first = Add<TButton>("Button1");
  auto* second = Add<TButton>("Button2");
  const auto click = Editor("OnClick", {first});
  click->Edit();
  EXPECT_EQ(first->OnClick.HandlerName(), "Button1Click");
  EXPECT_EQ(Designer.Shown, "Button1Click");
  click->SetValue("Go");
  EXPECT_FALSE(Designer.MethodExists("Button1Click"));
  const auto both = Editor("OnClick", {first, second});
  EXPECT_EQ(both->ShownValue(), "");
  both->SetValue("Go");
  EXPECT_EQ(second->OnClick.HandlerName(), "Go");
  const auto key = Editor("OnKeyDown", {first});
  EXPECT_THAT([&] { key->SetValue("Go"); }, ThrowsMessage<EPropertyError>(HasSubstr("Go")));
  EXPECT_TRUE(key->IsDefault());
  Designer.CreateMethod("Button1KeyDown", *first->ClassType().FindPublished("OnClick"));
  key->Edit();
  EXPECT_EQ(key->GetValue(), "Button1KeyDown2") << "the name is taken by another sort of handler";
  Editor("OnCreate", {&Designer.Form})->Edit();
  EXPECT_EQ(Designer.Shown, "FormCreate");
  both->SetValue("");
  EXPECT_TRUE(both->IsDefault());
  EXPECT_TRUE(Designer.MethodExists("Go"));
}

TEST_F(PropertyEditor, ADoubleClickChoosesTheNextValue) {
  auto* panel = Add<TPanel>("Panel1");
  const auto visible = Editor("Visible", {panel});
  visible->Edit();
  EXPECT_EQ(visible->GetValue(), "False");
  visible->Edit();
  EXPECT_EQ(visible->GetValue(), "True");
}

}  // namespace
}  // namespace vcl
