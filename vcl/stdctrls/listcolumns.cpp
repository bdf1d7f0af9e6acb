// TListColumn and TListGroup: their settings. What the window shows of them is the list view's.
#include "vcl/stdctrls/listcolumns.h"

#include <algorithm>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/stdctrls/listgroups.h"

namespace vcl {

// ---- Columns ----

const TClass& TListColumn::Class() {
  using T = TListColumn;
  static const TClass info = Describe<T, TCollectionItem>(
      "vcl::TListColumn", "vcl/stdctrls/comctrls.h",
      {
          Property<&T::Alignment, &T::SetAlignment>("Alignment").Default(taLeftJustify),
          Property<&T::AutoSize, &T::SetAutoSize>("AutoSize").Default(false),
          Property<&T::Caption, &T::SetCaption>("Caption").Default(""),
          Property<&T::ImageIndex, &T::SetImageIndex>("ImageIndex").Default(-1),
          Property<&T::MaxWidth, &T::SetMaxWidth>("MaxWidth").Default(0),
          Property<&T::MinWidth, &T::SetMinWidth>("MinWidth").Default(0),
          Property<&T::SortMark, &T::SetSortMark>("SortMark").Default(smNone),
          Property<&T::Width, &T::SetWidth>("Width").Default(50),
      });
  return info;
}

template <class T>
void TListColumn::Change(T& field, const T& value) {
  if (value == field) return;
  field = value;
  FWidth = Limited(FWidth);
  Changed(false);
}

int TListColumn::Limited(int width) const {
  width = std::max(width, FMinWidth);
  return FMaxWidth > 0 ? std::min(width, FMaxWidth) : width;
}

void TListColumn::SetCaption(const std::string& caption) { Change(FCaption, caption); }
void TListColumn::SetAlignment(TAlignment alignment) { Change(FAlignment, alignment); }
void TListColumn::SetAutoSize(bool autoSize) { Change(FAutoSize, autoSize); }
void TListColumn::SetImageIndex(int index) { Change(FImageIndex, std::max(index, -1)); }
void TListColumn::SetMaxWidth(int width) { Change(FMaxWidth, std::max(width, 0)); }
void TListColumn::SetMinWidth(int width) { Change(FMinWidth, std::max(width, 0)); }
void TListColumn::SetSortMark(TSortMark mark) { Change(FSortMark, mark); }
void TListColumn::SetWidth(int width) { Change(FWidth, Limited(std::max(width, 0))); }

void TListColumn::Assign(const TPersistent* source) {
  const auto* column = dynamic_cast<const TListColumn*>(source);
  if (!column) return TCollectionItem::Assign(source);
  SetAlignment(column->FAlignment);
  SetAutoSize(column->FAutoSize);
  SetCaption(column->FCaption);
  SetImageIndex(column->FImageIndex);
  SetMaxWidth(column->FMaxWidth);
  SetMinWidth(column->FMinWidth);
  SetSortMark(column->FSortMark);
  SetWidth(column->FWidth);
}

std::string TListColumn::DisplayName() const {
  return FCaption.empty() ? TCollectionItem::DisplayName() : FCaption;
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
