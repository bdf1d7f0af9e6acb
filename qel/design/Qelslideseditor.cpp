// The editor of slides: what its form lists, and what it adds.
#include "qel/design/Qelslideseditor.h"

#include "qel/controls/Qeltpresentation.h"
#include "qel/design/itemsform.h"

namespace qel {
namespace {

vcl::TCollectionItem* NewSlide(TQELSlides& slides) { return slides.Add(); }

}  // namespace

void TQELSlidesProperty::Edit() {
  auto* slides = dynamic_cast<TQELSlides*>(ObjectValue());
  if (slides) EditItems(*this, *slides, "Title", &NewSlide);
}

}  // namespace qel
