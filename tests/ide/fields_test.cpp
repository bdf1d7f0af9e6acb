// Fields of data sets, and what names them, on a form that is designed.
#include <gmock/gmock.h>

#include "tests/ide/designerfixture.h"
#include "vcl/db/fields.h"
#include "vcl/db/memorydataset.h"
#include "vcl/dbctrls/dbctrls.h"
#include "vcl/designintf/componenteditor.h"

namespace ide {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class DesignedFields : public Designer {
 protected:
  DesignedFields() {
    OpenForm(
        " object Source: TDataSource\n DataSet = People\n end\n"
        " object People: TMemoryDataSet\n FieldDefs = <\n"
        "  item\n Name = 'Name'\n DataType = ftString\n Size = 20\n end\n"
        "  item\n Name = 'Born on'\n DataType = ftDate\n end>\n Left = 16\n Top = 200\n end\n"
        " object Edit: TDBEdit\n DataSource = Source\n Left = 150\n Top = 20\n end\n"
        " object Grid: TDBGrid\n DataSource = Source\n Left = 150\n Top = 60\n end\n");
  }
  std::vector<std::string> Lines() {
    std::vector<std::string> lines;
    const TStrings& items = *Window->FieldsWindow().List().Items();
    for (int i = 0; i < items.Count(); ++i) lines.push_back(items.Strings(i));
    return lines;
  }
  void Execute(const char* component, int verb) {
    MakeComponentEditor(It(), *Find<TComponent>(component))->ExecuteVerb(verb);
  }
  std::vector<std::string> Offered(TObject& object, const char* property) {
    std::vector<std::string> values;
    const auto editors =
        PropertiesOf(It(), {&object}, [&](const TPropInfo& each) { return each.Name == property; });
    for (const auto& editor : editors) {
      editor->GetValues([&](const std::string& value) { values.push_back(value); });
    }
    return values;
  }
};

TEST_F(DesignedFields, AreMadeOfTheDataOrderedAndDeleted) {
  const std::string before = Document().Text();
  TFieldsWindow& window = Window->FieldsWindow();
  EXPECT_EQ(MakeComponentEditor(It(), *Find<TComponent>("People"))->GetVerb(0), "Fields...");
  Execute("People", 0);
  EXPECT_TRUE(window.Visible());
  EXPECT_THAT(Lines(), ElementsAre());
  window.AddAll();
  EXPECT_THAT(Lines(), ElementsAre("Name", "Born on"));
  EXPECT_THAT(SelectedNames(), ElementsAre("PeopleBornon"));
  EXPECT_THAT(Document().Text(), HasSubstr("object PeopleBornon: TDateField"));
  EXPECT_EQ(Find<TStringField>("PeopleName")->Size(), 20);
  window.MoveField(-1);
  EXPECT_THAT(Lines(), ElementsAre("Born on", "Name"));
  SetProperty("DisplayLabel", "Birthday");
  EXPECT_THAT(Document().Text(), HasSubstr("DisplayLabel = 'Birthday'"));
  EXPECT_THAT(Document().Text(), HasSubstr("TDateField"));
  window.DeleteField();
  EXPECT_THAT(Lines(), ElementsAre("Name"));
  EXPECT_EQ(Find<TDateField>("PeopleBornon"), nullptr);
  window.AddAll();
  EXPECT_THAT(Lines(), ElementsAre("Name", "Born on"));
  // The fields of a data set that is open, too.
  Find<TMemoryDataSet>("People")->Open();
  window.DeleteField();
  EXPECT_TRUE(Find<TMemoryDataSet>("People")->Active());
  EXPECT_THAT(Lines(), ElementsAre("Name"));
  while (Document().CanUndo()) It().Undo();
  EXPECT_EQ(Document().Text(), before);
  It().SetSelection({Find<TComponent>("People")});
  It().DeleteSelected();
  EXPECT_FALSE(window.Visible());
}

TEST_F(DesignedFields, AreMembersOfTheFormsClass) {
  Execute("People", 0);
  Window->FieldsWindow().AddAll();
  It().SetSelection({Find<TComponent>("PeopleBornon")});
  auto editors = PropertiesOf(It(), {Find<TComponent>("PeopleBornon")},
                              [](const TPropInfo& each) { return each.Name == "OnValidate"; });
  ASSERT_EQ(editors.size(), 1u);
  editors[0]->SetValue("CheckBirthday");
  Document().Save(File("form.dfm"));
  ASSERT_TRUE(Window->WriteUnit());
  const std::string header = Read("form.h");
  EXPECT_THAT(header, HasSubstr("vcl::TStringField* PeopleName = nullptr;"));
  EXPECT_THAT(header, HasSubstr("vcl::TDateField* PeopleBornon = nullptr;"));
  EXPECT_THAT(header, HasSubstr("void CheckBirthday(vcl::TField* sender);"));
  EXPECT_THAT(Read("form.cpp"), HasSubstr("Field<&TF::PeopleName>(\"PeopleName\")"));
}

TEST_F(DesignedFields, AreOfferedWhereTheyAreNamed) {
  EXPECT_THAT(Offered(*Find<TDBEdit>("Edit"), "DataField"), ElementsAre("Name", "Born on"));
  EXPECT_THAT(Offered(*Find<TMemoryDataSet>("People"), "IndexFieldNames"),
              ElementsAre("Name", "Born on"));
  EXPECT_THAT(Offered(*Find<TMemoryDataSet>("People"), "MasterFields"), ElementsAre());
  Execute("Grid", 1);
  TDBGrid& grid = *Find<TDBGrid>("Grid");
  ASSERT_EQ(grid.Columns()->Count(), 2);
  EXPECT_EQ(grid.Columns()->Items(1)->FieldName(), "Born on");
  EXPECT_THAT(Offered(*grid.Columns()->Items(0), "FieldName"), ElementsAre("Name", "Born on"));
  Execute("Grid", 1);
  EXPECT_EQ(grid.Columns()->Count(), 2) << "each once";
  Find<TComponent>("Edit");
  Find<TDBEdit>("Edit")->SetDataSource(nullptr);
  EXPECT_THAT(Offered(*Find<TDBEdit>("Edit"), "DataField"), ElementsAre());
}

}  // namespace
}  // namespace ide
