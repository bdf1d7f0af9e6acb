// TQELHeader: its properties, fitting, and the widths kept between runs.
#include "qel/controls/Qeltheader.h"

#include <algorithm>

#include "vcl/controls/accelerators.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/graphics/fontmetrics.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TRect;
using vcl::TWatch;

namespace {

constexpr const char* StoreSection = "Header Widths";

}  // namespace

const vcl::TClass& TQELHeader::Class() {
  using T = TQELHeader;
  using namespace vcl;
  static const TClass info = Describe<T, TQELCustomControl>(
      "qel::TQELHeader", "qel/controls/Qeltheader.h",
      {
          Inherit("About"),
          Inherit("Align"),
          Property<&T::AllowMove, &T::SetAllowMove>("AllowMove").Default(false),
          Property<&T::AllowResize, &T::SetAllowResize>("AllowResize").Default(true),
          Inherit("Anchors"),
          Inherit("Background"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Inherit("Font"),
          Property<&T::Font3D, &T::SetFont3D>("Font3D"),
          Property<&T::Images, &T::SetImages>("Images"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Property<&T::Sections, &T::SetSections>("Sections"),
          Inherit("ShowHint"),
          Property<&T::SortColumn, &T::SetSortColumn>("SortColumn").Default(-1),
          Property<&T::SortDescending, &T::SetSortDescending>("SortDescending").Default(false),
          Inherit("TabOrder"),
          Inherit("TabStop").Default(true),
          Inherit("Visible"),
          ReadOnly<&T::WidthStore>("WidthStore"),
          Inherit("OnClick"),
          Inherit("OnDblClick"),
          Inherit(DragEvents),
          Event<&T::OnDrawSection>("OnDrawSection")
              .Type("TQELDrawSectionEvent",
                    "vcl::TObject* sender, qel::TQELHeaderSection* section, const vcl::TRect& "
                    "rect, bool pressed"),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(MouseEvents),
          Inherit("OnResize"),
          Event<&T::OnSectionClick>("OnSectionClick")
              .Type("TQELSectionEvent", "vcl::TObject* sender, qel::TQELHeaderSection* section"),
          Event<&T::OnSectionMove>("OnSectionMove")
              .Type("TQELSectionMoveEvent",
                    "vcl::TObject* sender, int fromIndex, int toIndex, bool& allow"),
          Event<&T::OnSectionResize>("OnSectionResize")
              .Type("TQELSectionEvent", "vcl::TObject* sender, qel::TQELHeaderSection* section"),
          Event<&T::OnSectionTrack>("OnSectionTrack")
              .Type("TQELSectionTrackEvent",
                    "vcl::TObject* sender, qel::TQELHeaderSection* section, int& width"),
          Inherit("OnStartDrag"),
      });
  return info;
}

TQELHeader::TQELHeader(vcl::TComponent* owner)
    : TQELCustomControl(owner),
      FSections(std::make_unique<TQELHeaderSections>()),
      FWidthStore(std::make_unique<TQELDataStore>()),
      FFont3D(std::make_unique<TQELFont3D>(this)) {
  SetControlStyle({vcl::csCaptureMouse, vcl::csClickEvents, vcl::csDoubleClicks, vcl::csOpaque});
  SetBounds(0, 0, 250, 20);
  SetTabStop(true);
  FWidthStore->SetEnabled(false);
  FWidthStore->Registry()->SetSection(StoreSection);
  FWidthStore->Inifile()->SetSection(StoreSection);
  FSections->OnUpdate = [this](vcl::TCollectionItem*) { UpdateSections(); };
  FImages.Link.OnChange = [this](vcl::TObject*) { Invalidate(); };
  HearOnlyAsked<TQELHeader>();
}

TQELHeader::~TQELHeader() {
  AnnounceEnd();
  FSections->OnUpdate = nullptr;
  FImages.Take(nullptr, *this);
}

void TQELHeader::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  TQELCustomControl::Notification(component, operation);
  if (operation == vcl::opRemove && component == FImages.List) SetImages(nullptr);
}

// Properties.

void TQELHeader::SetImages(vcl::TImageList* images) {
  if (FImages.Take(images, *this)) UpdateSections();
}

void TQELHeader::SetSortColumn(int section) {
  if (section < -1 || section == FSortColumn) return;
  FSortColumn = section;
  Invalidate();
}

void TQELHeader::SetSortDescending(bool descending) {
  if (descending == FSortDescending) return;
  FSortDescending = descending;
  Invalidate();
}

void TQELHeader::UpdateSections() {
  if (FSpreading || Loading() || Destroying()) return;
  {
    const vcl::TSetFor spreading(FSpreading, true, this);
    FSections->Spread(ViewWidth());
  }
  FHot = std::min(FHot, FSections->Count() - 1);
  FFocused = std::clamp(FFocused, 0, std::max(FSections->Count() - 1, 0));
  Invalidate();
  SectionsChanged();
}

void TQELHeader::Resize() {
  const TWatch watch(this);
  TQELCustomControl::Resize();
  if (!watch.Gone()) UpdateSections();
}

void TQELHeader::ChangeScale(int m, int d) {
  const TWatch watch(this);
  TQELCustomControl::ChangeScale(m, d);
  if (watch.Gone()) return;
  FSections->ScaleWidths([&](int width) { return ScaleMeasure(width, m, d); });
}

// Fitting.

TRect TQELHeader::SectionRect(int index) const {
  const int left = FSections->Left(index);
  return {left, 0, left + FSections->Items(index)->Width(), ClientHeight()};
}

int TQELHeader::ContentWidth(int index) const {
  const TQELHeaderSection* section = FSections->Items(index);
  int width = vcl::TextWidth(*Font(), vcl::WithoutAccel(section->Text()));
  width += FFont3D->GetDrawingwidth() + 2 * ScaledPixels(TitleMargin);
  if (FImages.List && section->ImageIndex() >= 0) {
    width += FImages.List->Width() + ScaledPixels(TitleGap);
  }
  if (index == FSortColumn) width += 3 * ScaledPixels(MarkSize) + ScaledPixels(TitleGap);
  return width;
}

int TQELHeader::FittingHeight() const {
  const int text = vcl::FontHeight(*Font()) + FFont3D->GetDrawingwidth();
  const int image = FImages.List ? FImages.List->Height() : 0;
  return std::max(text, image) + 2 * ScaledPixels(TitleGap);
}

void TQELHeader::FitSection(int index) { FSections->Items(index)->SetWidth(ContentWidth(index)); }

// The widths between runs. A section is known by the number that it alone has, wherever the user
// has moved it.

std::string TQELHeader::StoredName(int index) const {
  const bool owned = Owner() && !Owner()->Name().empty();
  const std::string owner = owned ? Owner()->Name() + "." : std::string();
  return vcl::Concat(owner, Name(), "_Width", std::to_string(FSections->Items(index)->ID()));
}

/// Does something with the store, whose errors are no reason to do without the header.
template <class Use>
void TQELHeader::WithStore(Use use) {
  if (!FWidthStore->Enabled() || Designing()) return;
  const TWatch watch(this);
  try {
    use();
  } catch (const vcl::EIniFileException&) {
    if (!watch.Gone()) FWidthStore->OnError(FWidthStore.get());
  } catch (const vcl::ERegistryException&) {
    if (!watch.Gone()) FWidthStore->OnError(FWidthStore.get());
  }
}

void TQELHeader::LoadWidths() {
  WithStore([this] {
    vcl::TStringList values;
    const TWatch watch(this);
    const TQELDataStore::TStrictReading strict(*FWidthStore, this);
    FWidthStore->ReadStrs(values);
    if (watch.Gone()) return;
    FSections->BeginUpdate();
    for (int i = 0; i < FSections->Count(); ++i) {
      int width = 0;
      const bool known = vcl::TryStrToInt(values.Values(StoredName(i)), width) && width >= 0;
      if (known) FSections->Items(i)->SetWidth(::MulDiv(width, CurrentPPI(), 96));
    }
    FSections->EndUpdate();
  });
}

void TQELHeader::SaveWidths() {
  WithStore([this] {
    const TWatch watch(this);
    for (int i = 0; !watch.Gone() && i < FSections->Count(); ++i) {
      const int width = ::MulDiv(FSections->Items(i)->Width(), 96, CurrentPPI());
      FWidthStore->WriteInt(StoredName(i), width);
    }
  });
}

void TQELHeader::Loaded() {
  TQELCustomControl::Loaded();
  const TWatch watch(this);
  LoadWidths();
  if (!watch.Gone()) UpdateSections();
}

// Screen readers.

void TQELHeader::DescribeAccessible(vcl::TAccessibleInfo& info) const {
  TQELCustomControl::DescribeAccessible(info);
  info.Role = vcl::arList;
}

std::vector<vcl::TAccessiblePart> TQELHeader::AccessibleParts() {
  std::vector<vcl::TAccessiblePart> parts;
  for (int i = 0; i < FSections->Count(); ++i) {
    const TQELHeaderSection* section = FSections->Items(i);
    vcl::TAccessiblePart& part = parts.emplace_back();
    part.Role = vcl::arColumnHeader;
    part.Bounds = SectionRect(i);
    part.Name = vcl::WithoutAccel(section->Text());
    part.KeyboardShortcut = vcl::AccelKeys(section->Text());
    if (i == FSortColumn) part.Description = FSortDescending ? "Sorted down" : "Sorted up";
    if (SectionEnabled(i)) part.DefaultAction = "Click";
    if (IsPressed(i)) part.State.Include(vcl::asPressed);
    if (section->Width() == 0) part.State.Include(vcl::asInvisible);
    if (Focused() && i == FFocused) part.State.Include(vcl::asFocused);
  }
  return parts;
}

void TQELHeader::DoAccessiblePart(const vcl::TAccessiblePath& part) {
  if (part.size() == 1) ClickSection(part[0]);
}

}  // namespace qel
