// The groups in which list views show their items: TListGroup and TListGroups.
#pragma once

#include <string>

#include "vcl/controls/controltypes.h"
#include "vcl/rtl/collection.h"

namespace vcl {

/// A group of a list view, which with GroupView stands under a header of its own.
class VCL_API TListGroup : public TCollectionItem {
 public:
  /// A new one's GroupID is one that no other group of the list view has.
  explicit TListGroup(TCollection* collection);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void Assign(const TPersistent* source) override;
  std::string DisplayName() const override;

  int GroupID() const { return FGroupID; }
  /// The number by which items say that they stand in the group. Raises EListError for one that
  /// another group has, and EArgumentOutOfRangeException below 0.
  void SetGroupID(int id);
  const std::string& Header() const { return FHeader; }
  /// The text above the items.
  void SetHeader(const std::string& header);
  TAlignment HeaderAlign() const { return FHeaderAlign; }
  /// Where the text stands.
  void SetHeaderAlign(TAlignment alignment);

 private:
  bool Taken(int id) const;

  std::string FHeader;
  TAlignment FHeaderAlign = taLeftJustify;
  int FGroupID = 0;
};

/// The groups of a list view, from top to bottom.
class VCL_API TListGroups : public TCollection {
 public:
  TListGroups() : TCollection(TListGroup::Class()) {}
  /// The group at the index from 0. Raises EListError outside.
  TListGroup* Items(int index) const { return static_cast<TListGroup*>(TCollection::Items(index)); }
  TListGroup* operator[](int index) const { return Items(index); }
  TListGroup* Add() { return static_cast<TListGroup*>(TCollection::Add()); }
};

}  // namespace vcl
