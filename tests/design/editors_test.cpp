// The package's editors: which property and component gets which, and what they do.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qel/core/Qelcomponent.h"
#include "qel/core/Qelsecret.h"
#include "qel/data/Qeltdbascii.h"
#include "qel/dbcontrols/Qeltdbpassworddlg.h"
#include "qel/design/Qeldataeditors.h"
#include "qel/design/Qelpropertyeditors.h"
#include "qel/dialogs/Qeltqueryaccess.h"
#include "qel/mail/Qeltiemails.h"
#include "qel/mail/Qeltmapimail.h"
#include "tests/design/dialogs.h"
#include "tests/support/importpatch.h"
#include "tests/support/plaindesigner.h"
#include "tests/vcl/testinput.h"
#include "vcl/db/memorydataset.h"
#include "vcl/designintf/componenteditor.h"
#include "vcl/designintf/package.h"
#include "vcl/rtl/classregistry.h"
#include "vcl/rtl/utf16.h"
#include "vcl/vcl.h"

namespace qel {
namespace {

using namespace dialogs;
using namespace vcl;
using testing::ElementsAre;

class Editors : public testing::Test {
 protected:
  TEditedProperties Edited(TObject& object, const char* property) {
    return {{&object, object.ClassType().FindPublished(property)}};
  }

  TPackage Package{"qel.dll"};
  TPlainDesigner Designer;
};

TEST_F(Editors, ReachThePropertiesOfDescendants) {
  const struct {
    const char* Class;
    const char* Property;
    const char* Editor;
  } cases[] = {
      {"TQELGradient", "ColorsInBetween", "TQELColorInBetweenProperty"},
      {"TQELLabel", "Caption", "TQELCaptionProperty"},
      {"TQELLabel", "Hint", "TQELHintProperty"},
      {"TQELLabel", "Name", "TComponentNameProperty"},
      {"TQELTimer32", "About", "TQELAboutCompsProperty"},
      {"TQELSMTPMail", "DesignExecute", "TQELShowMeNowProperty"},
      // A name in a nested object, which the binding to the component does not reach.
      {"TQELIniFile", "Filename", "TStringProperty"},
  };
  for (const auto& [className, property, editor] : cases) {
    const TClass* aClass = nullptr;
    for (const TClass* each : Package.Classes()) {
      if (each->Name() == className) aClass = each;
    }
    ASSERT_NE(aClass, nullptr) << className;
    EXPECT_EQ(EditorClassOf(*aClass, *aClass->FindPublished(property)).Name, editor) << className;
  }
}

/// What the file dialog was asked for, and what it answers.
struct TAsked {
  std::wstring Filter;
  std::wstring Name;
  const wchar_t* Answer = nullptr;
};
TAsked asked;

BOOL WINAPI AskForFile(OPENFILENAMEW* data) {
  const wchar_t* end = data->lpstrFilter;
  while (*end) end += std::wcslen(end) + 1;
  asked.Filter.assign(data->lpstrFilter, end);
  asked.Name = data->lpstrFile;
  if (asked.Answer) std::wcscpy(data->lpstrFile, asked.Answer);
  return asked.Answer != nullptr;
}

template <class Editor>
void ExpectFilter(TPlainDesigner& designer, const std::string& filter) {
  TButton button(nullptr);
  button.SetHint("C:\\old.txt");
  Editor editor(designer, {{&button, button.ClassType().FindPublished("Hint")}});
  EXPECT_EQ(editor.GetFilter(), filter);
  EXPECT_EQ(editor.GetAttributes(), TPropertyAttributes{paDialog});
  asked = {};
  editor.Edit();
  std::wstring parts = ToUtf16(filter);
  std::ranges::replace(parts, L'|', L'\0');
  EXPECT_EQ(asked.Filter, parts);
  EXPECT_EQ(asked.Name, L"C:\\old.txt");
  EXPECT_EQ(button.Hint(), "C:\\old.txt") << "cancelled";
  asked.Answer = L"C:\\new.txt";
  editor.Edit();
  EXPECT_EQ(button.Hint(), "C:\\new.txt");
}

TEST_F(Editors, FileNamesAreChosenInADialog) {
  const TImportPatch patch("qelhost.dll", "GetOpenFileNameW", &AskForFile);
  ExpectFilter<TQELFilenameProperty>(Designer, "All Files (*.*)|*.*|");
  ExpectFilter<TQELWaveFilenameProperty>(Designer, "Wave Files (*.wav)|*.wav|");
  ExpectFilter<TQELBitmapFilenameProperty>(Designer, "Bitmaps (*.bmp)|*.bmp|");
  ExpectFilter<TQELINIFilenameProperty>(Designer, "INI Files (*.ini)|*.ini|");
  ExpectFilter<TQELAviFilenameProperty>(Designer, "Avi Files (*.avi)|*.avi|");
  ExpectFilter<TQELLogFilenameProperty>(Designer, "Log Files (*.log)|*.log|");
}

TEST_F(Editors, OfferWhatTheyCanDo) {
  TButton button(nullptr);
  button.SetEnabled(true);
  TQELROBooleanproperty shown(Designer, Edited(button, "Enabled"));
  EXPECT_TRUE(shown.ReadOnly());
  EXPECT_FALSE(shown.CanRevert());
  shown.Edit();
  EXPECT_TRUE(button.Enabled());
  EXPECT_EQ(TQELROStringProperty(Designer, Edited(button, "Hint")).GetAttributes(),
            (TPropertyAttributes{paMultiSelect, paRevertable, paReadOnly}));
  TQELSMTPMail mail(nullptr);
  const auto messages = MakePropertyEditor(Designer, Edited(mail, "Messages"));
  EXPECT_TRUE(messages->IsDefault());
  mail.Messages()->Add();
  EXPECT_FALSE(messages->IsDefault());
}

TEST_F(Editors, ACodeIsTypedTwiceAndItsHashIsSet) {
  TQELQueryAccess query(nullptr);
  const auto editor = MakePropertyEditor(Designer, Edited(query, "Code"));
  EXPECT_EQ(editor->GetValue(), "");
  try {
    editor->SetValue("typed");
    ADD_FAILURE() << "a code is no hash";
  } catch (const EPropertyError& error) {
    EXPECT_EQ(error.Message(), "A code is set by its button, not typed here");
  }
  const auto edit = [&](const char* code, const char* again) {
    const TOnForm onForm(L"Code", [&](HWND form) {
      Child<TCustomEdit>(form, 0).SetText(code);
      Child<TCustomEdit>(form, 1).SetText(again);
      Press(form, "OK");
    });
    editor->Edit();
  };
  edit("open", "opem");
  edit("", "");
  EXPECT_EQ(query.Code(), "");
  edit("open", "open");
  EXPECT_TRUE(QELCodeMatches("open", query.Code()));
  EXPECT_EQ(editor->GetValue(), "(set)");
  editor->SetValue("(set)");
  EXPECT_EQ(Designer.Modifications, 1);
  editor->Revert();
  EXPECT_EQ(query.Code(), "");
}

TEST_F(Editors, FieldsOfPasswordsAreChosen) {
  TMemoryDataSet data(nullptr);
  data.FieldDefs()->Add("Name", ftString, 10);
  data.FieldDefs()->Add("Key", ftString, 120);
  TDataSource source(nullptr);
  source.SetDataSet(&data);
  TQELDBPasswordDlg dialog(nullptr);
  dialog.SetDataSource(&source);
  for (const char* property : {"DataUsername", "Datapassword"}) {
    std::vector<std::string> names;
    MakePropertyEditor(Designer, Edited(dialog, property))->GetValues([&](const std::string& name) {
      names.push_back(name);
    });
    EXPECT_THAT(names, ElementsAre("Name", "Key")) << property;
  }
}

class TCounter : public TQELExecComponent {
 public:
  using TQELExecComponent::TQELExecComponent;
  bool Execute() override { return ++Runs > 0; }
  int Runs = 0;
};

TEST_F(Editors, RunComponents) {
  TCounter counter(nullptr);
  MakePropertyEditor(Designer, Edited(counter, "DesignExecute"))->Edit();
  EXPECT_EQ(counter.Runs, 1);
  const auto editor = MakeComponentEditor(Designer, counter);
  editor->Edit();
  editor->ExecuteVerb(0);
  EXPECT_EQ(counter.Runs, 3);
  testinput::TBoxAnswer answer(IDOK);
  editor->ExecuteVerb(1);
  EXPECT_TRUE(answer.Wait());
  EXPECT_THAT(answer.Text(), testing::HasSubstr("About"));
  EXPECT_THROW(editor->ExecuteVerb(2), EListError);
}

TEST_F(Editors, ColorsKeepWhatWasEditedHoweverTheFormIsClosed) {
  const std::unique_ptr<TObject> gradient(FindClass("TQELGradient").Maker().Plain());
  const auto edited = Edited(*gradient, "ColorsInBetween");
  auto* colors = dynamic_cast<TStrings*>(std::get<TObject*>(edited[0].Property->Get(*gradient)));
  ASSERT_NE(colors, nullptr);
  colors->SetCommaText("clRed,nonsense,$00FF00");
  EXPECT_FALSE(MakePropertyEditor(Designer, edited)->IsDefault());
  const TOnForm onForm(L"Colors in between", [](HWND form) {
    Choose(form, 0);
    Press(form, "&Delete");
  });
  MakePropertyEditor(Designer, edited)->Edit();
  EXPECT_EQ(colors->CommaText(), "nonsense,$00FF00");
  EXPECT_EQ(Designer.Modifications, 1);
}

/// Where the selected item's property of that place in its list is edited.
HWND EditOf(HWND form, int property) {
  const HWND panel = ::FindWindowExW(form, nullptr, L"TPanel", nullptr);
  return ::ChildWindowFromPoint(panel, {150, property * 27 + 10});
}

TEST_F(Editors, MailsAreConfiguredInAForm) {
  TQELSMTPMail mail(nullptr);
  mail.Messages()->Add()->SetSubject("first");
  mail.Messages()->Add()->SetSubject("second");
  const auto editor = MakeComponentEditor(Designer, mail);
  for (const std::string end : {"Cancel", "OK"}) {
    const TOnForm onForm(L"Messages", [&](HWND form) {
      Press(form, "&Delete");
      Press(form, "&Add");
      ::SetWindowTextW(EditOf(form, 3), L"new");
      Press(form, end.c_str());
    });
    editor->ExecuteVerb(0);
    ASSERT_EQ(mail.Messages()->Count(), 2);
    const bool agreed = end == "OK";
    EXPECT_EQ(mail.Messages()->GetQELMessage(0)->Subject(), agreed ? "second" : "first");
    EXPECT_EQ(mail.Messages()->GetQELMessage(1)->Subject(), agreed ? "new" : "second");
  }
  EXPECT_GE(Designer.Modifications, 1);
}

TEST_F(Editors, FilesAreAttachedUnderTheirFullNames) {
  const TImportPatch patch("qelhost.dll", "GetOpenFileNameW", &AskForFile);
  TQELSMTPMail mail(nullptr);
  TQELMessage& message = *mail.Messages()->Add();
  asked.Answer = L"C:\\folder\\file.txt";
  const TOnForm onForm(L"Attachments", [&](HWND form) {
    Press(form, "&Add");
    asked.Answer = nullptr;
    Press(form, "&Add");
    Press(form, "OK");
  });
  MakePropertyEditor(Designer, Edited(message, "Attachments"))->Edit();
  ASSERT_EQ(message.Attachments()->Count(), 1);
  EXPECT_EQ(message.Attachments()->GeTQELAttachment(0)->FileName(), "C:\\folder\\file.txt");
}

/// A column of anybody's collection.
class TPlainColumn : public TCollectionItem {
 public:
  using TCollectionItem::TCollectionItem;
  static const TClass& Class() {
    static const TClass info = Describe<TPlainColumn, TCollectionItem>(
        "TPlainColumn", "sample",
        {Property<&TPlainColumn::DataField, &TPlainColumn::SetDataField>("DataField")});
    return info;
  }
  const TClass& ClassType() const override { return Class(); }
  const std::string& DataField() const { return FDataField; }
  void SetDataField(const std::string& name) { FDataField = name; }

 private:
  std::string FDataField;
};

class TPlainTable : public TComponent {
 public:
  using TComponent::TComponent;
  static const TClass& Class() {
    static const TClass info = Describe<TPlainTable, TComponent>(
        "TPlainTable", "sample",
        {Property<&TPlainTable::Columns, &TPlainTable::SetColumns>("Columns"),
         Property<&TPlainTable::DataSource, &TPlainTable::SetDataSource>("DataSource")});
    return info;
  }
  const TClass& ClassType() const override { return Class(); }
  TCollection* Columns() const { return FColumns.get(); }
  void SetColumns(const TCollection* columns) { FColumns->Assign(columns); }
  TDataSource* DataSource() const { return FDataSource; }
  void SetDataSource(TDataSource* source) { FDataSource = source; }

 private:
  std::unique_ptr<TCollection> FColumns = std::make_unique<TCollection>(TPlainColumn::Class());
  TDataSource* FDataSource = nullptr;
};

TEST_F(Editors, ColumnsOfferTheFieldsOfTheirDataSet) {
  TMemoryDataSet data(nullptr);
  data.FieldDefs()->Add("Town", ftString, 20);
  data.FieldDefs()->Add("Area", ftFloat);
  TDataSource source(nullptr);
  TQELDBAscii ascii(&Designer.Form);
  TQELADField& column = *ascii.Fields()->Add();
  const TQELDataFieldProperty own(Designer, Edited(ascii, "Name"));
  const auto ofColumn = MakePropertyEditor(Designer, Edited(column, "DataField"));
  const auto offered = [&] {
    std::vector<std::string> names, ownNames;
    ofColumn->GetValues([&](const std::string& name) { names.push_back(name); });
    own.GetValues([&](const std::string& name) { ownNames.push_back(name); });
    EXPECT_EQ(names, ownNames) << "a property of the component, of its column";
    return names;
  };
  EXPECT_THAT(offered(), ElementsAre()) << "no source";
  ascii.SetDataSource(&source);
  EXPECT_THAT(offered(), ElementsAre()) << "no data set";
  source.SetDataSet(&data);
  EXPECT_THAT(offered(), ElementsAre("Town", "Area")) << "closed";
  data.Open();
  EXPECT_THAT(offered(), ElementsAre("Town", "Area")) << "open";
  TPlainTable table(&Designer.Form);
  table.SetDataSource(&source);
  const auto ofAny = MakePropertyEditor(Designer, Edited(*table.Columns()->Add(), "DataField"));
  std::vector<std::string> names;
  ofAny->GetValues([&](const std::string& name) { names.push_back(name); });
  EXPECT_THAT(names, ElementsAre("Town", "Area")) << "whatever the collection is";
}

}  // namespace
}  // namespace qel
