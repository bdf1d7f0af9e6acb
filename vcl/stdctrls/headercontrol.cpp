// THeaderControl: its sections, told to the system's header and heard from it.
#include "vcl/stdctrls/headercontrol.h"

#include <algorithm>
#include <utility>

#include "vcl/controls/propertygroups.h"
#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/utf16.h"
#include "vcl/stdctrls/private/commoncontrols.h"
#include "vcl/stdctrls/private/headerfit.h"

namespace vcl {

// ---- Sections ----

const TClass& THeaderSection::Class() {
  using T = THeaderSection;
  static const TClass info = Describe<T, THeaderItem>(
      "vcl::THeaderSection", "vcl/stdctrls/comctrls.h",
      {
          Inherit("Alignment"),
          Property<&T::AllowClick, &T::SetAllowClick>("AllowClick").Default(true),
          Inherit("AutoSize"),
          Inherit("ImageIndex"),
          Inherit("MaxWidth"),
          Inherit("MinWidth"),
          Inherit("SortMark"),
          Inherit("Text"),
          Inherit("Width"),
      });
  return info;
}

void THeaderSection::Assign(const TPersistent* source) {
  THeaderItem::Assign(source);
  const auto* section = dynamic_cast<const THeaderSection*>(source);
  if (section) SetAllowClick(section->FAllowClick);
}

int THeaderSection::Left() const {
  int left = 0;
  for (int i = 0; i < Index(); ++i) {
    left += static_cast<const THeaderSection*>(Collection()->Items(i))->Width();
  }
  return left;
}

// ---- The control ----

const TClass& THeaderControl::Class() {
  using T = THeaderControl;
  static const TClass info = Describe<T, TWinControl>(
      "vcl::THeaderControl", "vcl/stdctrls/comctrls.h",
      {
          Inherit("Align").Default(alTop),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Property<&T::DragReorder, &T::SetDragReorder>("DragReorder").Default(false),
          Inherit("Enabled"),
          Inherit("Font"),
          Property<&T::FullDrag, &T::SetFullDrag>("FullDrag").Default(true),
          Property<&T::HotTrack, &T::SetHotTrack>("HotTrack").Default(false),
          Property<&T::Images, &T::SetImages>("Images"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Property<&T::Sections, &T::SetSections>("Sections"),
          Inherit("ShowHint"),
          Inherit("Visible"),
          Inherit("OnClick"),
          Inherit("OnDblClick"),
          Inherit(DragEvents),
          Inherit(MouseEvents),
          Inherit("OnResize"),
          Event<&T::OnSectionClick>("OnSectionClick")
              .Type("TSectionEvent", "vcl::TObject* sender, vcl::THeaderSection* section"),
          Event<&T::OnSectionDrag>("OnSectionDrag")
              .Type("TSectionDragEvent",
                    "vcl::TObject* sender, vcl::THeaderSection* from, vcl::THeaderSection* to, "
                    "bool& allow"),
          Event<&T::OnSectionEndDrag>("OnSectionEndDrag"),
          Event<&T::OnSectionResize>("OnSectionResize")
              .Type("TSectionEvent", "vcl::TObject* sender, vcl::THeaderSection* section"),
          Event<&T::OnSectionTrack>("OnSectionTrack")
              .Type("TSectionTrackEvent",
                    "vcl::TObject* sender, vcl::THeaderSection* section, int width, "
                    "vcl::TSectionTrackState state"),
          Inherit("OnStartDrag"),
      });
  return info;
}

THeaderControl::THeaderControl(TComponent* owner)
    : TWinControl(owner), FSections(std::make_unique<THeaderSections>()) {
  SetControlStyle({csCaptureMouse, csClickEvents, csDoubleClicks, csOpaque});
  SetBounds(0, 0, 250, 17);
  FSections->OnUpdate = [this](TCollectionItem* item) { SectionsChanged(item); };
  FImages.Link.OnChange = TNotifyEvent(this, &THeaderControl::PicturesChanged);
  SetAlign(alTop);
}

THeaderControl::~THeaderControl() {
  AnnounceEnd();
  FSections->OnUpdate = nullptr;
}

template <class T>
void THeaderControl::ChangeWindow(T& field, T value) {
  if (value == field) return;
  field = value;
  RecreateWnd();
}

void THeaderControl::SetDragReorder(bool drag) { ChangeWindow(FDragReorder, drag); }
void THeaderControl::SetFullDrag(bool fullDrag) { ChangeWindow(FFullDrag, fullDrag); }
void THeaderControl::SetHotTrack(bool hotTrack) { ChangeWindow(FHotTrack, hotTrack); }

void THeaderControl::SetImages(TImageList* images) {
  if (FImages.Take(images, *this)) PicturesChanged(images);
}

void THeaderControl::PicturesChanged(TObject* /*sender*/) {
  if (!HandleAllocated()) return;
  TImageList* images = FImages.List ? FImages.List->ForPPI(CurrentPPI()) : nullptr;
  Send(*this, HDM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images ? images->Handle() : nullptr));
  Invalidate();
}

void THeaderControl::Notification(TComponent* component, TOperation operation) {
  TWinControl::Notification(component, operation);
  if (operation == opRemove && component == FImages.List) SetImages(nullptr);
}

void THeaderControl::ChangeScale(int m, int d) {
  TWinControl::ChangeScale(m, d);
  const TUpdating once(*FSections);
  for (int i = 0; i < FSections->Count(); ++i) {
    THeaderSection* section = FSections->Items(i);
    const int width = ScaleMeasure(section->Width(), m, d);
    section->SetMaxWidth(ScaleMeasure(section->MaxWidth(), m, d));
    section->SetMinWidth(ScaleMeasure(section->MinWidth(), m, d));
    section->SetWidth(width);
  }
}

// The window.

void THeaderControl::CreateParams(TCreateParams& params) {
  UseCommonControls(ICC_LISTVIEW_CLASSES);
  TWinControl::CreateParams(params);
  params.SubClassOf = WC_HEADERA;
  params.Style |= HDS_BUTTONS;
  if (FDragReorder) params.Style |= HDS_DRAGDROP;
  if (FFullDrag) params.Style |= HDS_FULLDRAG;
  if (FHotTrack) params.Style |= HDS_HOTTRACK;
}

void THeaderControl::CreateWnd() {
  TWinControl::CreateWnd();
  PicturesChanged(nullptr);
  SendSections();
}

void THeaderControl::SectionsChanged(TCollectionItem* item) {
  if (!HandleAllocated() || FSending) return;
  if (!item) return SendSections();
  SendSection(static_cast<const THeaderSection&>(*item), HDM_SETITEMW);
  FitSections();
}

void THeaderControl::SendSections() {
  {
    const TSetFor sending(FSending, true, this);
    for (LRESULT i = Send(*this, HDM_GETITEMCOUNT); i > 0; --i) {
      Send(*this, HDM_DELETEITEM, static_cast<WPARAM>(i - 1));
    }
    for (int i = 0; i < FSections->Count(); ++i) SendSection(*FSections->Items(i), HDM_INSERTITEMW);
  }
  FitSections();
}

void THeaderControl::SendSection(const THeaderSection& section, UINT message) {
  const TSetFor sending(FSending, true, this);
  static constexpr int alignments[] = {HDF_LEFT, HDF_RIGHT, HDF_CENTER};
  std::wstring text = ToUtf16(section.Text());
  HDITEMW sent{};
  sent.mask = HDI_TEXT | HDI_FORMAT | HDI_WIDTH;
  sent.cxy = section.Width();
  sent.pszText = text.data();
  sent.fmt = HDF_STRING | alignments[section.Alignment()] | SortMarkFormat(section.SortMark());
  if (section.ImageIndex() >= 0) {
    sent.mask |= HDI_IMAGE;
    sent.fmt |= HDF_IMAGE;
    sent.iImage = section.ImageIndex();
  }
  Send(*this, message, static_cast<WPARAM>(section.Index()), reinterpret_cast<LPARAM>(&sent));
}

void THeaderControl::SendWidth(const THeaderItem& section) {
  const TSetFor sending(FSending, true, this);
  HDITEMW sent{};
  sent.mask = HDI_WIDTH;
  sent.cxy = section.Width();
  Send(*this, HDM_SETITEMW, static_cast<WPARAM>(section.Index()), reinterpret_cast<LPARAM>(&sent));
}

void THeaderControl::FitSections() {
  if (!HandleAllocated()) return;
  THeaderFit::Share(*FSections, ClientWidth(),
                    [this](const THeaderItem& section) { SendWidth(section); });
}

void THeaderControl::Resize() {
  const TWatch watch(this);
  TWinControl::Resize();
  if (!watch.Gone()) FitSections();
}

THeaderSection* THeaderControl::SectionAt(TPoint position) const {
  HDHITTESTINFO test{};
  test.pt = position;
  const auto place = static_cast<int>(Send(*this, HDM_HITTEST, 0, reinterpret_cast<LPARAM>(&test)));
  const bool on = (test.flags & (HHT_ONHEADER | HHT_ONDIVIDER)) != 0;
  return on && place >= 0 && place < FSections->Count() ? FSections->Items(place) : nullptr;
}

// What the window tells.

void THeaderControl::SectionClick(THeaderSection* section) { OnSectionClick(this, section); }

/// Keeps an event until the window has done with the message that brought it: a handler may free
/// the control, and with it the window.
void THeaderControl::Later(const THeaderSection& section, TTell tell) {
  FPending.push_back({section.ID(), std::move(tell)});
}

void THeaderControl::DefaultHandler(TMessage& message) {
  const TWatch watch(this);
  {
    ++FInWindow;
    const TAtEnd out([this] { --FInWindow; }, this);
    TWinControl::DefaultHandler(message);
  }
  while (!watch.Gone() && FInWindow == 0 && !FPending.empty()) {
    const TPending next = std::move(FPending.front());
    FPending.erase(FPending.begin());
    if (auto* section = static_cast<THeaderSection*>(FSections->FindItemID(next.ID))) {
      next.Tell(section);
    }
  }
}

/// The window has given a section another width, which the section may refuse.
void THeaderControl::SectionSized(THeaderSection& section, int width) {
  THeaderFit::SetWidth(section, section.Limited(width));
  if (section.Width() != width) SendWidth(section);
  FitSections();
}

void THeaderControl::Track(const THeaderSection& section, int width, TSectionTrackState state) {
  const int now = section.Limited(width);
  Later(section,
        [this, now, state](THeaderSection* one) { OnSectionTrack(this, one, now, state); });
}

/// The user has dropped the section at the place, which is -1 where it is none.
void THeaderControl::Drop(const THeaderSection& section, int place) {
  Later(section, [this, place](THeaderSection* from) {
    const TWatch watch(this);
    const bool moves = place >= 0 && place < FSections->Count() && place != from->Index();
    bool allow = true;
    const int id = from->ID();
    if (moves) OnSectionDrag(this, from, FSections->Items(place), allow);
    if (watch.Gone()) return;
    const bool whole = FSections->FindItemID(id) == from && place < FSections->Count();
    if (moves && allow && whole) from->SetIndex(place);
    OnSectionEndDrag(this);
  });
}

void THeaderControl::NotifyFromWindow(TMessage& message) {
  const auto code = static_cast<int>(reinterpret_cast<const NMHDR*>(message.LParam)->code);
  // Everything else the window tells, how it is drawn as well, brings another record.
  if (code > static_cast<int>(HDN_FIRST) || code < static_cast<int>(HDN_LAST)) return;
  const auto& told = *reinterpret_cast<const NMHEADERW*>(message.LParam);
  if (FSending || told.iItem < 0 || told.iItem >= FSections->Count()) return;
  THeaderSection& section = *FSections->Items(told.iItem);
  const bool sized = told.pitem && (told.pitem->mask & HDI_WIDTH);
  const int width = sized ? told.pitem->cxy : section.Width();
  switch (told.hdr.code) {
    case static_cast<UINT>(HDN_ITEMCLICKW):
    case static_cast<UINT>(HDN_ITEMCLICKA):
      if (section.AllowClick()) {
        Later(section, [this](THeaderSection* one) { SectionClick(one); });
      }
      return;
    case static_cast<UINT>(HDN_BEGINTRACKW):
    case static_cast<UINT>(HDN_BEGINTRACKA):
      FTracking = true;
      return Track(section, width, tsTrackBegin);
    case static_cast<UINT>(HDN_TRACKW):
    case static_cast<UINT>(HDN_TRACKA): return Track(section, width, tsTrackMove);
    case static_cast<UINT>(HDN_ITEMCHANGEDW):
    case static_cast<UINT>(HDN_ITEMCHANGEDA):
      if (sized) SectionSized(section, width);
      return FTracking ? Track(section, width, tsTrackMove) : void();
    case static_cast<UINT>(HDN_ENDTRACKW):
    case static_cast<UINT>(HDN_ENDTRACKA):
      FTracking = false;
      Track(section, width, tsTrackEnd);
      return Later(section, [this](THeaderSection* one) { OnSectionResize(this, one); });
    case static_cast<UINT>(HDN_ENDDRAG):
      // The sections themselves change places, and the window with them.
      message.Result = TRUE;
      return Drop(section, told.pitem ? told.pitem->iOrder : -1);
    default: return;
  }
}

void THeaderControl::Dispatch(TMessage& message) {
  if (message.Msg == CN_NOTIFY) return NotifyFromWindow(message);
  TWinControl::Dispatch(message);
}

// Screen readers.

void THeaderControl::DescribeAccessible(TAccessibleInfo& info) const {
  TWinControl::DescribeAccessible(info);
  info.Role = arList;
}

std::vector<TAccessiblePart> THeaderControl::AccessibleParts() {
  std::vector<TAccessiblePart> parts;
  for (int i = 0; i < FSections->Count(); ++i) {
    const THeaderSection* section = FSections->Items(i);
    TAccessiblePart& part = parts.emplace_back();
    part.Role = arColumnHeader;
    part.Name = section->Text();
    if (section->AllowClick()) part.DefaultAction = "Press";
    RECT bounds{};
    SendIfAllocated(*this, HDM_GETITEMRECT, static_cast<WPARAM>(i),
                    reinterpret_cast<LPARAM>(&bounds));
    part.Bounds = bounds;
  }
  return parts;
}

void THeaderControl::DoAccessiblePart(const TAccessiblePath& part) {
  THeaderSection* section = FSections->Items(part.front());
  if (section->AllowClick() && Enabled()) SectionClick(section);
}

}  // namespace vcl
