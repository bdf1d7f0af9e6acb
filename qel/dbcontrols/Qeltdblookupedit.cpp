// TQELDBLookupedit: the records' texts as items, and their keys as the field's values.
#include "qel/dbcontrols/Qeltdblookupedit.h"

#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace qel {

const vcl::TClass& TQELDBLookupedit::Class() {
  using T = TQELDBLookupedit;
  using namespace vcl;
  static const TClass info = Describe<T, TQELLookupEdit>(
      "qel::TQELDBLookupedit", "qel/dbcontrols/Qeltdblookupedit.h",
      {
          Property<&T::DataField, &T::SetDataField>("DataField").Default(""),
          Property<&T::DataSource, &T::SetDataSource>("DataSource"),
          vcl::ReadOnly<&T::ItemIndex>("ItemIndex"),
          // The items are the list source's.
          Inherit("Items").Stored(false),
          Property<&T::KeyField, &T::SetKeyField>("KeyField").Default(""),
          Inherit("LimitToList").Default(true),
          Property<&T::ListField, &T::SetListField>("ListField").Default(""),
          Property<&T::ListSource, &T::SetListSource>("ListSource"),
          Property<&T::ReadOnly, &T::SetReadOnly>("ReadOnly").Default(false),
          vcl::ReadOnly<&T::Text>("Text").Type("TCaption"),
      });
  return info;
}

TQELDBLookupedit::TQELDBLookupedit(vcl::TComponent* owner)
    : TQELFieldEdit(owner), FRows([this] { RowsChanged(); }) {
  SetLimitToList(true);
  HearOnlyAsked<TQELDBLookupedit>();
}

TQELDBLookupedit::~TQELDBLookupedit() {
  AnnounceEnd();
  FRows.SetDataSource(nullptr);
}

void TQELDBLookupedit::SetListSource(vcl::TDataSource* source) {
  FRows.SetDataSource(source);
  if (source) source->FreeNotification(this);
  RowsChanged();
}

void TQELDBLookupedit::SetListField(const std::string& name) {
  FRows.SetListField(name);
  RowsChanged();
}

void TQELDBLookupedit::SetKeyField(const std::string& name) {
  FRows.SetKeyField(name);
  RowsChanged();
}

// What the user has typed waits for the record to be written.
void TQELDBLookupedit::RowsChanged() {
  FItemsKnown = false;
  if (!FChanged) ShowNow();
}

bool TQELDBLookupedit::FillItems(const std::string& /*text*/) {
  if (FItemsKnown) return false;
  FItemsKnown = true;
  FKeys.clear();
  const vcl::TUpdating updating(*Items());
  Items()->Clear();
  for (int row = 0; row < FRows.Count(); ++row) {
    Items()->Add(FRows.Text(row));
    FKeys.push_back(FRows.Key(row));
  }
  return false;
}

std::string TQELDBLookupedit::ShownText(const vcl::TField& field) const {
  if (field.IsNull()) return {};
  const int row = FRows.RowOf(field.Value());
  return row < 0 ? TQELFieldEdit::ShownText(field) : FRows.Text(row);
}

void TQELDBLookupedit::ShowField() {
  FChanged = false;
  TQELFieldEdit::ShowField();
}

void TQELDBLookupedit::Change() {
  if (!ShowingField()) FChanged = true;
  TQELFieldEdit::Change();
}

void TQELDBLookupedit::Choose(int index) {
  if (EditField()) TQELFieldEdit::Choose(index);
}

void TQELDBLookupedit::WriteField() {
  const std::string text = Text();
  if (text.empty()) return Field()->Clear();
  FillItems(text);
  const int item = ItemIndex();
  if (item >= 0) return Field()->SetValue(FKeys.at(static_cast<std::size_t>(item)));
  if (!LimitToList()) return Field()->SetText(text);
  throw vcl::EDatabaseError(
      vcl::Concat("'", text, "' is not in the list of field '", Field()->DisplayLabel(), "'"));
}

}  // namespace qel
