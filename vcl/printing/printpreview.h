// TPrintPreview: shows the pages of a document as they will be printed.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "vcl/controls/scrolling.h"
#include "vcl/printing/pagerecorder.h"

namespace vcl {

/// How large pages are shown: by Zoom, as wide as the control, or wholly inside it.
enum TPreviewSize { psZoom, psPageWidth, psWholePage };
template <>
inline constexpr TEnumText EnumText<TPreviewSize>{"TPreviewSize", "psZoom psPageWidth psWholePage"};

/// Draws a document: the first page is begun; NewPage begins another one.
using TPrintPagesEvent = TEvent<TObject*, TPrintDocument&>;
template <>
inline constexpr TEventText EventText<TPrintPagesEvent>{
    "TPrintPagesEvent", "vcl::TObject* sender, vcl::TPrintDocument& document"};

/// Shows the pages that OnPrint draws, and prints them by the same handler. The pages have the
/// measures of Printer(), of a sheet of A4 where no printer is installed. Arrow and page keys, the
/// wheel and the scroll bars scroll, Ctrl with the page keys goes from page to page, Ctrl with
/// plus, minus and the wheel zooms.
class VCL_API TPrintPreview : public TScrollingWinControl {
 public:
  explicit TPrintPreview(TComponent* owner);
  ~TPrintPreview() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;

  /// Has OnPrint draw the pages anew. What that raises leaves the pages as they were.
  void UpdatePages();
  /// Has OnPrint draw on Printer(). Raises EPrinter, and what the handler raises; the document is
  /// given up then.
  void Print();
  /// Shows no pages.
  void Clear();
  /// The measures of the pages from the next UpdatePages on; nothing for the printer's.
  void SetPageMetrics(std::optional<TPageMetrics> metrics) { FMetrics = metrics; }
  int PageCount() const { return FRecorder ? FRecorder->PageCount() : 0; }
  /// The page that is looked at, from 0: the one that was gone to while it is in sight, else the
  /// first in sight; -1 without pages.
  int PageIndex() const;
  /// Brings a page into view. Raises EListError outside.
  void SetPageIndex(int index);
  void NextPage();
  void PriorPage();
  /// Where a page stands in the control. Raises EListError outside.
  TRect PageRect(int index) const;

  int Zoom() const { return FZoom; }
  /// How large pages are shown with psZoom, in percent of their real size. Sets Size to psZoom.
  /// Raises EArgumentOutOfRangeException below 10 and above 500.
  void SetZoom(int percent);
  TPreviewSize Size() const { return FSize; }
  /// By what the size of pages goes.
  void SetSize(TPreviewSize size);
  int PagesAcross() const { return FPagesAcross; }
  /// How many pages stand side by side. Raises EArgumentOutOfRangeException below 1 and above 20.
  void SetPagesAcross(int count);
  const std::string& Title() const { return FTitle; }
  /// What the system calls the document that Print prints.
  void SetTitle(const std::string& title) { FTitle = title; }

  /// The document's pages are to be drawn, for the preview or on paper.
  TPrintPagesEvent OnPrint;
  /// There are other pages, or they are shown in another size.
  TNotifyEvent OnChange;

 protected:
  void CreateParams(TCreateParams& params) override;
  void Resize() override;
  void KeyDown(std::uint16_t& key, TShiftState shift) override;
  void MouseDown(TMouseButton button, TShiftState shift, int x, int y) override;
  bool DoMouseWheel(TShiftState shift, int wheelDelta, TPoint mousePos) override;
  void ChangeScale(int m, int d) override;
  void Loaded() override;

 private:
  class TPage;
  TPageMetrics WantedMetrics() const;
  void Draw(TPrintDocument& document);
  void ShowPages(std::unique_ptr<TPageRecorder> recorder);
  void PlacePages();
  /// A page's size in the control's pixels.
  TSize PageSize() const;
  int Gap() const;
  void ZoomBy(int percent);
  void CheckPage(int index) const;

  std::unique_ptr<TPageRecorder> FRecorder;
  std::vector<TPage*> FPages;  // Inside the control, which frees them.
  std::optional<TPageMetrics> FMetrics;
  int FZoom = 100;
  TPreviewSize FSize = psWholePage;
  int FPagesAcross = 1;
  int FPage = -1;  // The one that was gone to.
  bool FPlacing = false;
  std::string FTitle;
};

}  // namespace vcl
