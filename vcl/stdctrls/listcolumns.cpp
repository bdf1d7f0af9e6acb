// TListColumn and TListGroup: their settings. What the window shows of them is the list view's.
#include "vcl/stdctrls/listcolumns.h"

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/stdctrls/listgroups.h"

namespace vcl {

// ---- Columns ----

const TClass& TListColumn::Class() {
  using T = TListColumn;
  static const TClass info =
      Describe<T, THeaderItem>("vcl::TListColumn", "vcl/stdctrls/comctrls.h",
                               {
                                   Inherit("Alignment"),
                                   Inherit("AutoSize"),
                                   Property<&T::Caption, &T::SetCaption>("Caption").Default(""),
                                   Inherit("ImageIndex"),
                                   Inherit("MaxWidth"),
                                   Inherit("MinWidth"),
                                   Inherit("SortMark"),
                                   Inherit("Width"),
                               });
  return info;
}

// ---- Groups ----

const TClass& TListGroup::Class() {
  using T = TListGroup;
  static const TClass info = Describe<T, TCollectionItem>(
      "vcl::TListGroup", "vcl/stdctrls/comctrls.h",
      {
          Property<&T::GroupID, &T::SetGroupID>("GroupID"),
          Property<&T::Header, &T::SetHeader>("Header").Default(""),
          Property<&T::HeaderAlign, &T::SetHeaderAlign>("HeaderAlign").Default(taLeftJustify),
      });
  return info;
}

TListGroup::TListGroup(TCollection* collection) : TCollectionItem(collection) {
  while (Taken(FGroupID)) ++FGroupID;
}

bool TListGroup::Taken(int id) const {
  for (int i = 0; Collection() && i < Collection()->Count(); ++i) {
    const TCollectionItem* other = Collection()->Items(i);
    if (other != this && static_cast<const TListGroup*>(other)->FGroupID == id) return true;
  }
  return false;
}

void TListGroup::SetGroupID(int id) {
  if (id < 0) {
    throw EArgumentOutOfRangeException(Concat("A group cannot have GroupID ", std::to_string(id)));
  }
  if (Taken(id)) throw EListError(Concat("Another group has GroupID ", std::to_string(id)));
  FGroupID = id;
  Changed(true);
}

void TListGroup::SetHeader(const std::string& header) {
  FHeader = header;
  Changed(true);
}

void TListGroup::SetHeaderAlign(TAlignment alignment) {
  FHeaderAlign = alignment;
  Changed(true);
}

void TListGroup::Assign(const TPersistent* source) {
  const auto* group = dynamic_cast<const TListGroup*>(source);
  if (!group) return TCollectionItem::Assign(source);
  SetGroupID(group->FGroupID);
  SetHeader(group->FHeader);
  SetHeaderAlign(group->FHeaderAlign);
}

std::string TListGroup::DisplayName() const {
  return FHeader.empty() ? TCollectionItem::DisplayName() : FHeader;
}

}  // namespace vcl
