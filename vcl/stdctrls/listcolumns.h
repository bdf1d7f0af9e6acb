// The columns of list views in vsReport: TListColumn and TListColumns.
#pragma once

#include <string>

#include "vcl/stdctrls/headeritem.h"

namespace vcl {

/// A column of a list view, as a part of its header. The system keeps the first one's texts to the
/// left.
class VCL_API TListColumn : public THeaderItem {
 public:
  explicit TListColumn(TCollection* collection) : THeaderItem(collection) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  const std::string& Caption() const { return Text(); }
  /// The text in the header.
  void SetCaption(const std::string& caption) { SetText(caption); }
};

/// The columns of a list view: the first one shows captions, the others the items' SubItems.
class VCL_API TListColumns : public TCollection {
 public:
  TListColumns() : TCollection(TListColumn::Class()) {}
  /// The column at the index from 0. Raises EListError outside.
  TListColumn* Items(int index) const {
    return static_cast<TListColumn*>(TCollection::Items(index));
  }
  TListColumn* operator[](int index) const { return Items(index); }
  TListColumn* Add() { return static_cast<TListColumn*>(TCollection::Add()); }
};

}  // namespace vcl
