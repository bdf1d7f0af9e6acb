// TSizeConstraints, TMargins and TPadding: keeping numbers, and telling that they changed.
#include "vcl/controls/layout.h"

#include <utility>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace vcl {

const TClass& TSizeConstraints::Class() {
  using T = TSizeConstraints;
  static const TClass info = Describe<T, TPersistent>(
      "vcl::TSizeConstraints", "vcl/controls/controls.h",
      {
          Property<&T::MaxHeight, &T::SetMaxHeight>("MaxHeight").Default(0),
          Property<&T::MaxWidth, &T::SetMaxWidth>("MaxWidth").Default(0),
          Property<&T::MinHeight, &T::SetMinHeight>("MinHeight").Default(0),
          Property<&T::MinWidth, &T::SetMinWidth>("MinWidth").Default(0),
      });
  return info;
}

TSizeConstraints::TSizeConstraints(std::function<void()> changed) : FChanged(std::move(changed)) {}
TSizeConstraints::~TSizeConstraints() = default;

void TSizeConstraints::Assign(const TPersistent* source) {
  const auto* other = dynamic_cast<const TSizeConstraints*>(source);
  if (!other) return TPersistent::Assign(source);
  FWidth = other->FWidth;
  FHeight = other->FHeight;
  Changed();
}

namespace {

void CheckSize(int value) {
  if (value >= 0) return;
  throw EArgumentOutOfRangeException(
      Concat("A size can't be limited to ", std::to_string(value), " pixels"));
}

}  // namespace

void TSizeConstraints::SetLeast(TLimits& limits, int value) {
  CheckSize(value);
  if (value == limits.Least) return;
  limits.Least = value;
  if (limits.Most != 0 && limits.Most < value) limits.Most = value;
  Changed();
}

void TSizeConstraints::SetMost(TLimits& limits, int value) {
  CheckSize(value);
  if (value == limits.Most) return;
  limits.Most = value;
  if (value != 0 && limits.Least > value) limits.Least = value;
  Changed();
}

void TSizeConstraints::Scale(int m, int d) {
  TScaledMeasure* scaled = FScaled;
  for (int* each : {&FWidth.Least, &FWidth.Most, &FHeight.Least, &FHeight.Most}) {
    *each = scaled++->Scale(*each, m, d);
  }
}

void TSizeConstraints::Changed() const {
  if (FChanged) FChanged();
}

const TClass& TEdges::Class() {
  using T = TEdges;
  static const TClass info = Describe<T, TPersistent>(
      "vcl::TEdges", "vcl/controls/controls.h",
      {
          Property<&T::Left, &T::SetLeft>("Left").Default(0).Unpublished(),
          Property<&T::Top, &T::SetTop>("Top").Default(0).Unpublished(),
          Property<&T::Right, &T::SetRight>("Right").Default(0).Unpublished(),
          Property<&T::Bottom, &T::SetBottom>("Bottom").Default(0).Unpublished(),
      });
  return info;
}

TEdges::TEdges(int all, std::function<void()> changed)
    : FEdges(all, all, all, all), FChanged(std::move(changed)) {}
TEdges::~TEdges() = default;

void TEdges::Assign(const TPersistent* source) {
  const auto* other = dynamic_cast<const TEdges*>(source);
  if (!other) return TPersistent::Assign(source);
  const TRect& edges = other->FEdges;
  SetEdges(edges.Left, edges.Top, edges.Right, edges.Bottom);
}

void TEdges::SetEdges(int left, int top, int right, int bottom) {
  const TRect edges(left, top, right, bottom);
  if (edges == FEdges) return;
  FEdges = edges;
  Changed();
}

TRect TEdges::Inside(const TRect& rect) const {
  return {rect.Left + FEdges.Left, rect.Top + FEdges.Top, rect.Right - FEdges.Right,
          rect.Bottom - FEdges.Bottom};
}

void TEdges::Scale(int m, int d) {
  TScaledMeasure* scaled = FScaled;
  for (int* each : {&FEdges.Left, &FEdges.Top, &FEdges.Right, &FEdges.Bottom}) {
    *each = scaled++->Scale(*each, m, d);
  }
}

void TEdges::Set(int& edge, int value) {
  if (value == edge) return;
  edge = value;
  Changed();
}

void TEdges::Changed() const {
  if (FChanged) FChanged();
}

const TClass& TMargins::Class() {
  static const TClass info = Describe<TMargins, TEdges>("vcl::TMargins", "vcl/controls/controls.h",
                                                        {
                                                            Inherit("Left").Default(3),
                                                            Inherit("Top").Default(3),
                                                            Inherit("Right").Default(3),
                                                            Inherit("Bottom").Default(3),
                                                        });
  return info;
}

TMargins::TMargins(std::function<void()> changed) : TEdges(3, std::move(changed)) {}

const TClass& TPadding::Class() {
  static const TClass info = Describe<TPadding, TEdges>(
      "vcl::TPadding", "vcl/controls/controls.h",
      {Inherit("Left"), Inherit("Top"), Inherit("Right"), Inherit("Bottom")});
  return info;
}

TPadding::TPadding(std::function<void()> changed) : TEdges(0, std::move(changed)) {}

}  // namespace vcl
