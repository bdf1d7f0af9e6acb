// TQELHeaderSection and TQELHeaderSections: the sections of a header, where each stands, and how
// sizing and moving change them. Nothing here is drawn.
#pragma once

#include <string>

#include "qel/core/api.h"
#include "vcl/controls/controltypes.h"
#include "vcl/rtl/collection.h"

namespace qel {

/// A section of a header. Widths are in pixels.
class QEL_API TQELHeaderSection : public vcl::TCollectionItem {
 public:
  explicit TQELHeaderSection(vcl::TCollection* collection) : TCollectionItem(collection) {}
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  void Assign(const vcl::TPersistent* source) override;
  std::string DisplayName() const override;

  const std::string& Text() const { return FText; }
  /// The title; the letter that "&" marks in it clicks the section.
  void SetText(const std::string& text);
  int Width() const { return FWidth; }
  /// The width, which is kept between MinWidth and MaxWidth; 0 hides the section. Less is taken as
  /// 0.
  void SetWidth(int width);
  int MinWidth() const { return FMinWidth; }
  /// The least width; it goes before MaxWidth. Takes only values from 0.
  void SetMinWidth(int width);
  int MaxWidth() const { return FMaxWidth; }
  /// The greatest width. Takes only values from 0.
  void SetMaxWidth(int width);
  vcl::TAlignment Alignment() const { return FAlignment; }
  /// Where the title stands, and in a list the texts below it.
  void SetAlignment(vcl::TAlignment alignment);
  int ImageIndex() const { return FImageIndex; }
  /// The picture before the title, in the header's Images; -1 for none.
  void SetImageIndex(int index);
  bool AllowClick() const { return FAllowClick; }
  /// False: the section does not go down under the mouse and clicks nothing.
  void SetAllowClick(bool allow);
  bool AutoSize() const { return FAutoSize; }
  /// True: the section takes what the others leave of the header's width, in equal parts with other
  /// such sections.
  void SetAutoSize(bool autoSize);
  /// Which column of a list the section shows: its place, until the user moves sections; from then
  /// on the place that it had before.
  int Column() const { return FColumn < 0 ? Index() : FColumn; }

  /// The width as near to this one as the limits let it.
  int Limited(int width) const;

 private:
  friend class TQELHeaderSections;
  template <class T>
  void Change(T& field, const T& value);

  std::string FText;
  int FWidth = 50;
  int FMinWidth = 0;
  int FMaxWidth = 10000;
  int FImageIndex = -1;
  int FColumn = -1;
  vcl::TAlignment FAlignment = vcl::taLeftJustify;
  bool FAllowClick = true;
  bool FAutoSize = false;
};

/// The sections of a header, from left to right. Places are pixels from the first one's left edge.
class QEL_API TQELHeaderSections : public vcl::TCollection {
 public:
  TQELHeaderSections() : TCollection(TQELHeaderSection::Class()) {}
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Raises EListError outside 0 to Count - 1.
  TQELHeaderSection* Items(int index) const {
    return static_cast<TQELHeaderSection*>(TCollection::Items(index));
  }
  TQELHeaderSection* operator[](int index) const { return Items(index); }
  TQELHeaderSection* Add() { return static_cast<TQELHeaderSection*>(TCollection::Add()); }
  bool Has(int index) const { return index >= 0 && index < Count(); }

  /// Where the section begins; of Count, where the last one ends.
  int Left(int index) const;
  int TotalWidth() const { return Left(Count()); }
  /// The section at the place; -1 for none.
  int SectionAt(int x) const;
  /// The section whose right edge is at most `reach` pixels away; just behind an edge it is that of
  /// the hidden section there. -1 for none.
  int EdgeAt(int x, int reach) const;
  /// The place to which a section that is let go there comes.
  int TargetAt(int x) const;
  /// The next section in the direction that is not hidden; `index` when there is none.
  int Step(int index, int by) const;
  /// Moves a section as a user does: each goes on showing its column.
  void MoveSection(int from, int to);
  /// Gives the sections that size themselves what the others leave of the width.
  void Spread(int width);
  /// Scales widths and limits.
  template <class Scale>
  void ScaleWidths(Scale scale) {
    BeginUpdate();
    for (int i = 0; i < Count(); ++i) {
      TQELHeaderSection* each = Items(i);
      const int width = scale(each->FWidth);
      each->FMinWidth = scale(each->FMinWidth);
      each->FMaxWidth = scale(each->FMaxWidth);
      each->FWidth = each->Limited(width);
      each->Changed(false);
    }
    EndUpdate();
  }
};

}  // namespace qel
