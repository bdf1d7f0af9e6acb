// TFieldsWindow: the fields of a data set that stand on the form, to be made, ordered and deleted.
#pragma once

#include <string>
#include <vector>

#include "ide/partswindow.h"
#include "vcl/db/dataset.h"

namespace ide {

/// Fields that are added are those of the data, all or some, and new ones, which are calculated at
/// first. While fields come or go, the data set is closed. Keys: Insert and Delete; Ctrl with the
/// arrows moves a field.
class TFieldsWindow : public TPartsWindow {
 public:
  explicit TFieldsWindow(vcl::TComponent* owner);
  ~TFieldsWindow() override;

  /// Shows a data set of the designer's form.
  void ShowFields(vcl::TDesigner& designer, vcl::TDataSet& data) { ShowParts(designer, data); }
  /// The data set that is shown; null for none.
  vcl::TDataSet* EditedData() const { return dynamic_cast<vcl::TDataSet*>(Edited()); }

  // What the buttons and keys do.
  void AddSome();
  void AddAll();
  void AddNew();
  void DeleteField();
  void MoveField(int by);

 protected:
  bool Takes(const vcl::TComponent& component) const override;
  const char* Title() const override { return "Fields of "; }
  void ListParts() override;

 private:
  vcl::TField* Selected() const { return dynamic_cast<vcl::TField*>(SelectedPart()); }
  std::vector<std::string> Missing();
  void Add(const std::vector<std::string>& names);
  vcl::TField* Place(vcl::TField* made, const std::string& fieldName);
  std::string NameFor(const vcl::TField& field) const;
  void ListKey(vcl::TObject* sender, std::uint16_t& key, vcl::TShiftState shift);
};

/// Gives data sets a component editor that shows them in the designer's window of fields, grids of
/// records one that makes columns, and the properties that name fields a list of them.
void RegisterFieldEditors();

/// The lists of names alone.
void RegisterFieldNames();

}  // namespace ide
