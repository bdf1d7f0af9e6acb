// THeaderControl: titles over columns that the program draws itself.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "vcl/controls/wincontrol.h"
#include "vcl/stdctrls/headeritem.h"
#include "vcl/stdctrls/linkedimages.h"

namespace vcl {

/// A section of a header control.
class VCL_API THeaderSection : public THeaderItem {
 public:
  explicit THeaderSection(TCollection* collection) : THeaderItem(collection) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void Assign(const TPersistent* source) override;

  bool AllowClick() const { return FAllowClick; }
  /// False: a click on the section is no OnSectionClick.
  void SetAllowClick(bool allow) { Change(FAllowClick, allow); }
  /// The section's edges in the control, in pixels.
  int Left() const;
  int Right() const { return Left() + Width(); }

 private:
  bool FAllowClick = true;
};

/// The sections, from left to right.
class VCL_API THeaderSections : public TCollection {
 public:
  THeaderSections() : TCollection(THeaderSection::Class()) {}
  /// The section at the index from 0. Raises EListError outside.
  THeaderSection* Items(int index) const {
    return static_cast<THeaderSection*>(TCollection::Items(index));
  }
  THeaderSection* operator[](int index) const { return Items(index); }
  THeaderSection* Add() { return static_cast<THeaderSection*>(TCollection::Add()); }
};

/// Where the user is with an edge that he drags.
enum TSectionTrackState { tsTrackBegin, tsTrackMove, tsTrackEnd };

using TSectionEvent = TEvent<TObject*, THeaderSection*>;
/// Sender, section, its width so far, where the user is with it.
using TSectionTrackEvent = TEvent<TObject*, THeaderSection*, int, TSectionTrackState>;
/// Sender, the section that is dragged, the one whose place it is to take, whether it may.
using TSectionDragEvent = TEvent<TObject*, THeaderSection*, THeaderSection*, bool&>;

/// The system's header. The user drags the edges of sections, and with DragReorder the sections
/// themselves, which then stand in the new order in Sections, too.
class VCL_API THeaderControl : public TWinControl {
 public:
  explicit THeaderControl(TComponent* owner);
  ~THeaderControl() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;
  std::vector<TAccessiblePart> AccessibleParts() override;
  void DoAccessiblePart(const TAccessiblePath& part) override;

  bool DragReorder() const { return FDragReorder; }
  /// True lets the user drag sections to other places.
  void SetDragReorder(bool drag);
  bool FullDrag() const { return FFullDrag; }
  /// True changes a section's width while its edge is dragged, false when it is let go.
  void SetFullDrag(bool fullDrag);
  bool HotTrack() const { return FHotTrack; }
  /// True highlights the section under the mouse.
  void SetHotTrack(bool hotTrack);
  TImageList* Images() const { return FImages.List; }
  /// What the sections' ImageIndex counts in. The pictures are drawn at the size for the monitor.
  void SetImages(TImageList* images);
  THeaderSections* Sections() const { return FSections.get(); }
  /// The sections, from left to right.
  void SetSections(const TCollection* sections) { FSections->Assign(sections); }
  /// The section at the position; null for none.
  THeaderSection* SectionAt(TPoint position) const;

  /// A section was clicked.
  TSectionEvent OnSectionClick;
  /// A section is dragged to the place of another, which the handler may refuse.
  TSectionDragEvent OnSectionDrag;
  /// A section has been dragged, to another place or not.
  TNotifyEvent OnSectionEndDrag;
  /// The user has changed the width of a section.
  TSectionEvent OnSectionResize;
  /// The user is dragging the edge of a section.
  TSectionTrackEvent OnSectionTrack;

 protected:
  virtual void SectionClick(THeaderSection* section);
  void ChangeScale(int m, int d) override;
  void CreateParams(TCreateParams& params) override;
  void CreateWnd() override;
  void DefaultHandler(TMessage& message) override;
  void Dispatch(TMessage& message) override;
  void Notification(TComponent* component, TOperation operation) override;
  void Resize() override;

 private:
  using TTell = std::function<void(THeaderSection*)>;
  /// An event that waits for the window to have done with what it told.
  struct TPending {
    int ID;  // Of the section; by its number, as it may be gone.
    TTell Tell;
  };
  template <class T>
  void ChangeWindow(T& field, T value);
  void PicturesChanged(TObject* sender);
  void SectionsChanged(TCollectionItem* item);
  void SendSections();
  void SendSection(const THeaderSection& section, UINT message);
  void SendWidth(const THeaderItem& section);
  void FitSections();
  void NotifyFromWindow(TMessage& message);
  void SectionSized(THeaderSection& section, int width);
  void Track(const THeaderSection& section, int width, TSectionTrackState state);
  void Drop(const THeaderSection& section, int place);
  void Later(const THeaderSection& section, TTell tell);

  std::unique_ptr<THeaderSections> FSections;
  TLinkedImages FImages;
  std::vector<TPending> FPending;
  int FInWindow = 0;
  bool FSending = false;  // What the window tells is known.
  bool FTracking = false;
  bool FDragReorder = false;
  bool FFullDrag = true;
  bool FHotTrack = false;
};

}  // namespace vcl
