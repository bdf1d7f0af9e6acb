// TPickListsPage: the page of combo boxes, edits with more in them, and header lists.
#pragma once

#include <string>

#include "qel/qel.h"
#include "vcl/forms/frames.h"

namespace gallery {

/// The frame of picklistspage.dfm.
class TPickListsPage : public vcl::TFrame {
 public:
  explicit TPickListsPage(vcl::TComponent* owner);
  ~TPickListsPage() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

 private:
  // What the form file fills.
  qel::TQELHeader* SampleHeader = nullptr;

  void RowText(vcl::TObject*, int column, int row, std::string& text);
  void SectionClick(vcl::TObject*, qel::TQELHeaderSection* section);
};

}  // namespace gallery
