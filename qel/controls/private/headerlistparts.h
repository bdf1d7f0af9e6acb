// What a TQELHeaderList has: its lines, and its header.
#pragma once

#include <algorithm>
#include <string>

#include "qel/controls/Qeltheaderlist.h"

namespace qel {

/// The lines of Items, which tell the list where rows come and go.
class TQELHeaderList::TLines : public vcl::TStringList {
 public:
  explicit TLines(TQELHeaderList& list) : FList(list) {}
  int AddObject(const std::string& text, vcl::TObject* object) override {
    const int row = TStringList::AddObject(text, object);
    FList.RowInserted(row);
    return row;
  }
  void InsertObject(int index, const std::string& text, vcl::TObject* object) override {
    TStringList::InsertObject(index, text, object);
    FList.RowInserted(index);
  }
  void Delete(int index) override {
    TStringList::Delete(index);
    FList.RowDeleted(index);
  }
  void Clear() override {
    if (!FList.Virtual()) FList.RowsCleared();
    TStringList::Clear();
  }

 protected:
  void Changed() override {
    TStringList::Changed();
    FList.RowsChanged();
  }

 private:
  TQELHeaderList& FList;
};

/// The header over the rows, as wide as they are and scrolled as far.
class TQELHeaderList::TListHeader : public TQELHeader {
 public:
  explicit TListHeader(TQELHeaderList* list) : TQELHeader(list), FList(*list) { SetTabStop(false); }
  /// Lets sections that size themselves fill what is seen of the list.
  void Fit() { UpdateSections(); }

 protected:
  void SectionsChanged() override { FList.ColumnsChanged(); }
  void SectionClicked(TQELHeaderSection* section) override { FList.HeaderClicked(section); }
  void SectionResized(TQELHeaderSection* section) override {
    FList.OnSectionResize(&FList, section);
  }
  int ContentWidth(int index) const override {
    return std::max(TQELHeader::ContentWidth(index), FList.ContentWidth(index));
  }
  int ViewWidth() const override { return FList.ClientWidth(); }

 private:
  TQELHeaderList& FList;
};

}  // namespace qel
