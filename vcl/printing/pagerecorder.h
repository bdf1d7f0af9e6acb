// TPageRecorder: a document whose pages are kept in memory.
#pragma once

#include <vector>

#include "vcl/graphics/handles.h"
#include "vcl/printing/printdocument.h"

namespace vcl {

namespace detail {
VCL_API void DeleteMetafile(HENHMETAFILE metafile);
inline void FreeMetafile(HENHMETAFILE metafile) { DeleteMetafile(metafile); }
}  // namespace detail
using TOwnedMetafile = TOwned<HENHMETAFILE, &detail::FreeMetafile>;

/// Keeps what is drawn on each page as an enhanced metafile, with the measures of a printer's page:
/// the code that prints draws on it, too. A document that is begun takes the place of the former
/// one; one that is given up leaves no pages.
class VCL_API TPageRecorder : public TPrintDocument {
 public:
  /// Raises EArgumentOutOfRangeException for a page, a sheet or dots per inch below 1.
  explicit TPageRecorder(const TPageMetrics& metrics);
  ~TPageRecorder() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  TPageMetrics Metrics() const override { return FMetrics; }
  /// The pages that are finished.
  int PageCount() const { return static_cast<int>(FPages.size()); }
  /// The page at the index from 0; it stays the recorder's own. Raises EListError outside.
  HENHMETAFILE Page(int index) const;
  /// Draws what is on a page, from its upper left pixel on, stretched to the rectangle.
  void Draw(int index, TCanvas* canvas, const TRect& rect) const;

 protected:
  void StartDocument() override { FPages.clear(); }
  HDC StartPage() override;
  void EndPage() override;
  void EndDocument() override {}
  void AbortDocument() override;

 private:
  TPageMetrics FMetrics;
  std::vector<TOwnedMetafile> FPages;
  HDC FContext = nullptr;
};

}  // namespace vcl
