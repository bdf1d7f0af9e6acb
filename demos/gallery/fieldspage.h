// TFieldsPage: the page of data-aware controls, over records in memory.
#pragma once

#include "qel/qel.h"
#include "vcl/forms/frames.h"
#include "vcl/vcl.h"

namespace gallery {

/// The frame of fieldspage.dfm.
class TFieldsPage : public vcl::TFrame {
 public:
  explicit TFieldsPage(vcl::TComponent* owner);
  ~TFieldsPage() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

 private:
  // What the form file fills.
  vcl::TMemoryDataSet* People = nullptr;
  vcl::TMemoryDataSet* Kinds = nullptr;
  vcl::TLabel* FoundText = nullptr;

  void FillKinds();
  void FillPeople();
  void NotFound(vcl::TObject*);
};

}  // namespace gallery
