// TQELHeader: titles of columns, which are clicked, sized and moved.
#pragma once

#include <memory>

#include "qel/core/Qelclasses.h"
#include "qel/core/Qelcontrols.h"
#include "qel/core/Qelheadersections.h"
#include "qel/core/Qeltstoredata.h"
#include "vcl/stdctrls/linkedimages.h"

namespace qel {

/// Sender, section.
using TQELSectionEvent = vcl::TEvent<vcl::TObject*, TQELHeaderSection*>;
/// Sender, section, the width that it is about to get, which the handler may change.
using TQELSectionTrackEvent = vcl::TEvent<vcl::TObject*, TQELHeaderSection*, int&>;
/// Sender, the place before, the place to be, and whether the section may go there.
using TQELSectionMoveEvent = vcl::TEvent<vcl::TObject*, int, int, bool&>;
/// Sender, section, its rectangle on the sender's Canvas, and whether it is pressed.
using TQELDrawSectionEvent =
    vcl::TEvent<vcl::TObject*, TQELHeaderSection*, const vcl::TRect&, bool>;

/// A row of titles on a background. The mouse clicks a section, sizes it by its right edge, which a
/// double click fits, and moves it. By the keyboard Left, Right, Home and End go from section to
/// section and Space clicks; Shift with the arrows sizes, Ctrl with them moves, Ctrl and plus fits;
/// the letter that "&" marks in a title clicks, too. Escape takes back what the mouse is doing.
class QEL_API TQELHeader : public TQELCustomControl {
 public:
  explicit TQELHeader(vcl::TComponent* owner);
  ~TQELHeader() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(vcl::TAccessibleInfo& info) const override;
  std::vector<vcl::TAccessiblePart> AccessibleParts() override;
  void DoAccessiblePart(const vcl::TAccessiblePath& part) override;

  TQELHeaderSections* Sections() const { return FSections.get(); }
  /// The titles with their widths, from left to right.
  void SetSections(const TQELHeaderSections* sections) { FSections->Assign(sections); }
  /// Where the widths that the user gave are kept between runs, 96 to an inch. Not used until it is
  /// enabled. Read when the form has been read, written when the user has sized a section; what the
  /// store raises then is told by its OnError.
  TQELDataStore* WidthStore() const { return FWidthStore.get(); }
  vcl::TImageList* Images() const { return FImages.List; }
  /// The pictures of the sections, which are not owned; null for none.
  void SetImages(vcl::TImageList* images);
  /// How the titles are written.
  TQELFont3D* Font3D() const { return FFont3D.get(); }
  /// Copies the settings.
  void SetFont3D(const TQELFont3D* font3D) { FFont3D->Assign(font3D); }
  bool AllowResize() const { return FAllowResize; }
  /// True: the user may size the sections.
  void SetAllowResize(bool allow) { FAllowResize = allow; }
  bool AllowMove() const { return FAllowMove; }
  /// True: the user may move the sections.
  void SetAllowMove(bool allow) { FAllowMove = allow; }
  int SortColumn() const { return FSortColumn; }
  /// The section that has the mark of sorting; -1 for none. It goes with the section as the user
  /// moves it. Takes only values from -1.
  void SetSortColumn(int section);
  bool SortDescending() const { return FSortDescending; }
  /// The mark points down.
  void SetSortDescending(bool descending);

  /// Makes the section as wide as what it shows needs, within its limits. Raises EListError for a
  /// section that is not there.
  void FitSection(int index);
  /// The section's rectangle.
  vcl::TRect SectionRect(int index) const;
  /// The height that titles and pictures need.
  int FittingHeight() const;
  /// Reads the widths from the store resp. writes them there; nothing while it is not enabled.
  void LoadWidths();
  void SaveWidths();
  /// To draw on in OnDrawSection.
  vcl::TCanvas* Canvas() const { return TQELCustomControl::Canvas(); }

  /// A section is to be drawn on Canvas; its edge is there.
  TQELDrawSectionEvent OnDrawSection;
  /// A section was clicked, by mouse or keyboard.
  TQELSectionEvent OnSectionClick;
  /// The user is about to move a section: the handler may refuse it.
  TQELSectionMoveEvent OnSectionMove;
  /// The user has sized a section.
  TQELSectionEvent OnSectionResize;
  /// The user is sizing a section: the handler may change the width.
  TQELSectionTrackEvent OnSectionTrack;

 protected:
  /// What a list that stands under the header does with its news, before the events.
  virtual void SectionsChanged() {}
  virtual void SectionClicked(TQELHeaderSection* section) { OnSectionClick(this, section); }
  virtual void SectionResized(TQELHeaderSection* section) { OnSectionResize(this, section); }
  /// The width of what the section shows.
  virtual int ContentWidth(int index) const;
  /// The width of what is seen of the sections, which those that size themselves fill.
  virtual int ViewWidth() const { return ClientWidth(); }

  void ChangeScale(int m, int d) override;
  void Dispatch(vcl::TMessage& message) override;
  void KeyDown(std::uint16_t& key, vcl::TShiftState shift) override;
  void Loaded() override;
  void MouseDown(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) override;
  void MouseMove(vcl::TShiftState shift, int x, int y) override;
  void MouseUp(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) override;
  void DblClick() override;
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;
  void Paint() override;
  void Resize() override;
  /// Lets sections that size themselves fill the header, and has all painted again.
  void UpdateSections();

 private:
  // At 96 dots per inch.
  static constexpr int TitleMargin = 6;
  static constexpr int TitleGap = 3;
  static constexpr int MarkSize = 4;

  enum class TMouse { None, Pressing, Sizing, Moving };
  /// What a mouse button that is down does.
  struct TPress {
    TMouse Kind = TMouse::None;
    int Section = -1;
    int At = 0;      ///< Where the mouse went down.
    int Former = 0;  ///< The width at the beginning.
    int Target = -1;
    bool Over = true;  ///< The mouse is over the pressed section.
  };

  // Painting.
  void PaintSection(int index);
  void PaintTitle(int index, vcl::TRect rect, bool pressed);
  void PaintMark();
  void InvalidateSection(int index);
  bool IsPressed(int index) const;
  bool SectionEnabled(int index) const;

  // Mouse and keys.
  int EdgeAt(int x) const;
  void DragSize(int x);
  void DragMove(int x, int y);
  void EndPress(bool apply);
  void ReleaseSection(const TPress& press);
  void SetHot(int index);
  bool ShowSizingCursor();
  bool TakeWidth(int index, int width);
  void EndSizing(int index);
  void ClickSection(int index);
  void MoveByUser(int from, int to);
  bool DoKey(std::uint16_t key, vcl::TShiftState shift);
  void StepKey(int way, vcl::TShiftState shift);
  void FocusSection(int index);
  bool ClickByAccel(WPARAM character);
  std::string StoredName(int index) const;
  template <class Use>
  void WithStore(Use use);

  std::unique_ptr<TQELHeaderSections> FSections;
  std::unique_ptr<TQELDataStore> FWidthStore;
  std::unique_ptr<TQELFont3D> FFont3D;
  vcl::TLinkedImages FImages;
  TPress FPress;
  int FHot = -1;
  int FFocused = 0;
  int FSortColumn = -1;
  bool FSortDescending = false;
  bool FAllowResize = true;
  bool FAllowMove = false;
  bool FSpreading = false;
};

}  // namespace qel
