// TQELHeaderSection and TQELHeaderSections: settings, places, and sections that size themselves.
#include "qel/core/Qelheadersections.h"

#include <algorithm>
#include <cstdlib>

#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"

namespace qel {

const vcl::TClass& TQELHeaderSection::Class() {
  using T = TQELHeaderSection;
  using namespace vcl;
  static const TClass info = Describe<T, TCollectionItem>(
      "qel::TQELHeaderSection", "qel/core/Qelheadersections.h",
      {
          Property<&T::Alignment, &T::SetAlignment>("Alignment").Default(taLeftJustify),
          Property<&T::AllowClick, &T::SetAllowClick>("AllowClick").Default(true),
          Property<&T::AutoSize, &T::SetAutoSize>("AutoSize").Default(false),
          Property<&T::ImageIndex, &T::SetImageIndex>("ImageIndex").Default(-1),
          Property<&T::MaxWidth, &T::SetMaxWidth>("MaxWidth").Default(10000),
          Property<&T::MinWidth, &T::SetMinWidth>("MinWidth").Default(0),
          Property<&T::Text, &T::SetText>("Text").Default(""),
          // Behind its limits.
          Property<&T::Width, &T::SetWidth>("Width").Default(50),
      });
  return info;
}

const vcl::TClass& TQELHeaderSections::Class() {
  static const vcl::TClass info = vcl::Describe<TQELHeaderSections, TCollection>(
      "qel::TQELHeaderSections", "qel/core/Qelheadersections.h", {});
  return info;
}

// A section.

template <class T>
void TQELHeaderSection::Change(T& field, const T& value) {
  if (value == field) return;
  field = value;
  FWidth = Limited(FWidth);
  Changed(false);
}

int TQELHeaderSection::Limited(int width) const {
  return std::max(std::min(width, FMaxWidth), FMinWidth);
}

void TQELHeaderSection::SetText(const std::string& text) { Change(FText, text); }
void TQELHeaderSection::SetWidth(int width) { Change(FWidth, Limited(std::max(width, 0))); }

void TQELHeaderSection::SetMinWidth(int width) {
  if (width >= 0) Change(FMinWidth, width);
}

void TQELHeaderSection::SetMaxWidth(int width) {
  if (width >= 0) Change(FMaxWidth, width);
}

void TQELHeaderSection::SetAlignment(vcl::TAlignment alignment) { Change(FAlignment, alignment); }
void TQELHeaderSection::SetImageIndex(int index) { Change(FImageIndex, std::max(index, -1)); }
void TQELHeaderSection::SetAllowClick(bool allow) { Change(FAllowClick, allow); }
void TQELHeaderSection::SetAutoSize(bool autoSize) { Change(FAutoSize, autoSize); }

void TQELHeaderSection::Assign(const vcl::TPersistent* source) {
  const auto* section = dynamic_cast<const TQELHeaderSection*>(source);
  if (!section) return TCollectionItem::Assign(source);
  FColumn = section->FColumn;
  SetAlignment(section->FAlignment);
  SetAllowClick(section->FAllowClick);
  SetAutoSize(section->FAutoSize);
  SetImageIndex(section->FImageIndex);
  SetMaxWidth(section->FMaxWidth);
  SetMinWidth(section->FMinWidth);
  SetText(section->FText);
  SetWidth(section->FWidth);
}

std::string TQELHeaderSection::DisplayName() const {
  return FText.empty() ? TCollectionItem::DisplayName() : FText;
}

// Places.

int TQELHeaderSections::Left(int index) const {
  int left = 0;
  for (int i = 0; i < index; ++i) left += Items(i)->Width();
  return left;
}

int TQELHeaderSections::SectionAt(int x) const {
  int right = 0;
  for (int i = 0; x >= 0 && i < Count(); ++i) {
    right += Items(i)->Width();
    if (x < right) return i;
  }
  return -1;
}

int TQELHeaderSections::EdgeAt(int x, int reach) const {
  int right = 0;
  int found = -1;
  for (int i = 0; i < Count(); ++i) {
    const int width = Items(i)->Width();
    right += width;
    // In front of an edge it is the visible section's, behind it the last hidden one's.
    const bool hidden = width == 0 && x <= right;
    if (std::abs(x - right) <= reach && !hidden) found = i;
  }
  return found;
}

int TQELHeaderSections::TargetAt(int x) const {
  const int at = SectionAt(std::max(x, 0));
  return at < 0 ? Count() - 1 : at;
}

int TQELHeaderSections::Step(int index, int by) const {
  for (int i = index + by; Has(i); i += by) {
    if (Items(i)->Width() > 0) return i;
  }
  return index;
}

void TQELHeaderSections::MoveSection(int from, int to) {
  const vcl::TUpdating<TQELHeaderSections> once(*this);
  for (int i = 0; i < Count(); ++i) Items(i)->FColumn = Items(i)->Column();
  Items(from)->SetIndex(to);
}

void TQELHeaderSections::Spread(int width) {
  int left = width;
  int sharers = 0;
  for (int i = 0; i < Count(); ++i) {
    Items(i)->AutoSize() ? ++sharers : left -= Items(i)->Width();
  }
  const vcl::TUpdating<TQELHeaderSections> once(*this);
  for (int i = 0; i < Count(); ++i) {
    if (!Items(i)->AutoSize()) continue;
    Items(i)->SetWidth(std::max(left, 0) / sharers--);
    left -= Items(i)->Width();
  }
}

}  // namespace qel
