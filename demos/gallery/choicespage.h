// TChoicesPage: the page of check boxes, radio buttons, tool buttons, panels and dividers.
#pragma once

#include "qel/qel.h"
#include "vcl/forms/frames.h"

namespace gallery {

/// The frame of choicespage.dfm.
class TChoicesPage : public vcl::TFrame {
 public:
  explicit TChoicesPage(vcl::TComponent* owner);
  ~TChoicesPage() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

 private:
  // What the form file fills.
  qel::TQELArrowButton* ArrowUp = nullptr;
  qel::TQELArrowButton* ArrowDown = nullptr;
  qel::TQELArrowButton* ArrowRight = nullptr;
  vcl::TLabel* ArrowCount = nullptr;
  vcl::TLabel* LastText = nullptr;

  void ButtonClick(vcl::TObject* sender);
  void ArrowClick(vcl::TObject* sender);

  vcl::TPoint FPlace;
};

}  // namespace gallery
