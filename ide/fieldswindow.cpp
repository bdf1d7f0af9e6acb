// TFieldsWindow: listing a data set's own fields, and making, moving and deleting them.
#include "ide/fieldswindow.h"

#include <algorithm>
#include <memory>

#include "ide/formdesigner.h"
#include "vcl/db/fields.h"
#include "vcl/dbctrls/dbgrids.h"
#include "vcl/designintf/componenteditor.h"
#include "vcl/designintf/registration.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace ide {

using namespace vcl;

namespace {

/// The command of a data set in the designer.
class TDataSetEditor : public TComponentEditor {
 public:
  using TComponentEditor::TComponentEditor;
  int GetVerbCount() const override { return 1; }
  std::string GetVerb(int) const override { return "Fields..."; }
  void ExecuteVerb(int) override {
    auto* designer = dynamic_cast<TFormDesigner*>(&Designer());
    if (designer && designer->Events.ShowFields)
      designer->Events.ShowFields(dynamic_cast<TDataSet&>(Component()));
  }
};

/// The commands of a grid of records.
class TDBGridEditor : public TComponentEditor {
 public:
  using TComponentEditor::TComponentEditor;
  int GetVerbCount() const override { return 2; }
  std::string GetVerb(int index) const override {
    return index == 0 ? "Columns..." : "Add all fields as columns";
  }
  void ExecuteVerb(int index) override {
    auto& grid = dynamic_cast<TDBGrid&>(Component());
    if (index == 1) AddAllFields(grid);
    Designer().ShowCollection(grid, *grid.Columns(), "Columns");
  }

 private:
  /// Those that have a column already keep it.
  void AddAllFields(TDBGrid& grid) {
    TDataSet* const data = grid.DataSource() ? grid.DataSource()->DataSet() : nullptr;
    if (!data) return;
    if (data->FieldNames().empty()) data->UpdateFieldDefs();
    for (const std::string& name : data->FieldNames()) {
      bool there = false;
      for (int i = 0; i < grid.Columns()->Count(); ++i) {
        there = there || SameText(grid.Columns()->Items(i)->FieldName(), name);
      }
      if (!there) grid.Columns()->Add()->SetFieldName(name);
    }
    Designer().Modified();
  }
};

/// A list of texts of which several can be chosen.
class TChoiceForm : public TListWindow {
 public:
  TChoiceForm(const char* caption, const std::vector<std::string>& texts) : TListWindow(nullptr) {
    SetCaption(caption);
    SetPosition(poScreenCenter);
    List().SetMultiSelect(true);
    for (const std::string& each : texts) List().Items()->Add(each);
    if (!texts.empty()) List().SetItemIndex(0);
    AddButton("OK", [this] { SetModalResult(mrOk); })->SetDefault(true);
    AddButton("Cancel", [this] { SetModalResult(mrCancel); })->SetCancel(true);
    List().OnDblClick = TNotifyEvent([this](TObject*) { SetModalResult(mrOk); });
  }
  std::vector<std::string> Ask() {
    std::vector<std::string> chosen;
    if (ShowModal() != mrOk) return chosen;
    for (int i = 0; i < List().Items()->Count(); ++i) {
      if (List().Selected(i)) chosen.push_back(List().Items()->Strings(i));
    }
    return chosen;
  }
};

constexpr TFieldType Types[] = {ftString,   ftSmallint, ftInteger, ftLargeint, ftBoolean,
                                ftFloat,    ftCurrency, ftBCD,     ftDate,     ftTime,
                                ftDateTime, ftMemo,     ftBlob};

/// Closes the data set for a change of its fields, and opens it again behind it.
class TClosedFor {
 public:
  explicit TClosedFor(TDataSet& data) : FData(data), FWasOpen(data.Active()) { data.Close(); }
  ~TClosedFor() noexcept(false) {
    if (FWasOpen && std::uncaught_exceptions() == 0) FData.Open();
  }
  TClosedFor(const TClosedFor&) = delete;
  TClosedFor& operator=(const TClosedFor&) = delete;

 private:
  TDataSet& FData;
  bool FWasOpen;
};

}  // namespace

void RegisterFieldEditors() {
  RegisterComponentEditor(TDataSet::Class(),
                          ComponentEditorClass<TDataSetEditor>("TDataSetEditor"));
  RegisterComponentEditor(TDBGrid::Class(), ComponentEditorClass<TDBGridEditor>("TDBGridEditor"));
  std::vector<const TClass*> fields;
  for (const TFieldType type : Types) {
    fields.push_back(&std::unique_ptr<TField>(NewField(type, nullptr))->ClassType());
  }
  RegisterNoIcon(fields);
  RegisterFieldNames();
}

TFieldsWindow::TFieldsWindow(TComponent* owner) : TPartsWindow(owner) {
  SetBounds(280, 260, 300, 300);
  List().OnKeyDown = TKeyEvent(this, &TFieldsWindow::ListKey);
  const auto add = [this](const char* caption, auto command) {
    AddButton(caption, [this, command] {
      if (Edited()) command();
    });
  };
  add("&Add...", [this] { AddSome(); });
  add("Add a&ll", [this] { AddAll(); });
  add("&New...", [this] { AddNew(); });
  add("&Delete", [this] { DeleteField(); });
  add("&Up", [this] { MoveField(-1); });
  add("Do&wn", [this] { MoveField(1); });
}

TFieldsWindow::~TFieldsWindow() { AnnounceEnd(); }

bool TFieldsWindow::Takes(const TComponent& component) const {
  return dynamic_cast<const TDataSet*>(&component) != nullptr;
}

/// Those that the form owns; an open data set makes others for itself.
void TFieldsWindow::ListParts() {
  for (TField* field : EditedData()->Fields()) {
    if (field->Owner() == &FormDesigner().Root()) AddPart(field->FieldName(), field);
  }
}

/// The fields of the data that do not stand on the form.
std::vector<std::string> TFieldsWindow::Missing() {
  TDataSet& data = *EditedData();
  data.UpdateFieldDefs();
  std::vector<std::string> names;
  for (int i = 0; i < data.FieldDefs()->Count(); ++i) {
    const TField* const field = data.FindField(data.FieldDefs()->Items(i)->Name());
    const bool there = field && field->Owner() == &FormDesigner().Root();
    if (!there) names.push_back(data.FieldDefs()->Items(i)->Name());
  }
  return names;
}

/// The data set's name and the field's, as far as that can be a name; else one of the class's.
std::string TFieldsWindow::NameFor(const TField& field) const {
  std::string name = EditedData()->Name();
  for (const char c : field.FieldName()) {
    if (IsValidIdent(Concat("_", std::string(1, c)))) name += c;
  }
  const bool good =
      FormDesigner().NameProblem(field, name).empty() && !FormDesigner().Root().FindComponent(name);
  return good ? name : FormDesigner().UniqueName(field.ClassName());
}

TField* TFieldsWindow::Place(TField* made, const std::string& fieldName) {
  std::unique_ptr<TField> field(made);
  field->SetFieldName(fieldName);
  field->SetName(NameFor(*field));
  field->SetDataSet(EditedData());
  return field.release();
}

void TFieldsWindow::Add(const std::vector<std::string>& names) {
  if (names.empty()) return;
  TField* last = nullptr;
  {
    const TClosedFor closed(*EditedData());
    const TFieldDefs& definitions = *EditedData()->FieldDefs();
    for (const std::string& name : names) {
      const TFieldDef& definition = *definitions.Items(definitions.IndexOf(name));
      TField* const field = NewField(definition.DataType(), &FormDesigner().Root());
      if (!field) continue;
      field->SetSize(definition.Size());
      field->SetRequired(definition.Required());
      field->SetReadOnly(definition.ReadOnly());
      last = Place(field, name);
    }
  }
  Changed(last);
}

void TFieldsWindow::AddAll() { Add(Missing()); }

void TFieldsWindow::AddSome() { Add(TChoiceForm("Add fields", Missing()).Ask()); }

void TFieldsWindow::AddNew() {
  std::vector<std::string> classes;
  for (const TFieldType type : Types) {
    classes.push_back(std::unique_ptr<TField>(NewField(type, nullptr))->ClassName());
  }
  TField* last = nullptr;
  for (const std::string& chosen : TChoiceForm("New field", classes).Ask()) {
    const auto type = Types[std::ranges::find(classes, chosen) - classes.begin()];
    const TClosedFor closed(*EditedData());
    TField* const field = NewField(type, &FormDesigner().Root());
    field->SetFieldKind(fkCalculated);
    int number = 1;
    while (EditedData()->FindField(Concat("Field", std::to_string(number)))) ++number;
    last = Place(field, Concat("Field", std::to_string(number)));
  }
  if (last) Changed(last);
}

/// The one that takes its place is selected then, else the one before it.
void TFieldsWindow::DeleteField() {
  TField* const field = Selected();
  if (!field) return;
  const int line = List().ItemIndex();
  TComponent* const next = PartAt(line + 1) ? PartAt(line + 1) : PartAt(line - 1);
  FormDesigner().SetSelection({Edited()});
  {
    const TClosedFor closed(*EditedData());
    delete field;
  }
  Changed(next);
}

void TFieldsWindow::MoveField(int by) {
  TField* const field = Selected();
  if (!field || !PartAt(List().ItemIndex() + by)) return;
  field->SetIndex(field->Index() + by);
  Changed(field);
}

void TFieldsWindow::ListKey(TObject*, std::uint16_t& key, TShiftState shift) {
  if (!Edited()) return;
  const std::uint16_t pressed = std::exchange(key, std::uint16_t{0});
  const bool ctrl = shift.Has(ssCtrl);
  if (pressed == VK_INSERT && !ctrl) return AddSome();
  if (pressed == VK_DELETE && !ctrl) return DeleteField();
  if (pressed == VK_UP && ctrl) return MoveField(-1);
  if (pressed == VK_DOWN && ctrl) return MoveField(1);
  key = pressed;
}

}  // namespace ide
