// TQELVersionLabel: which entry of which file.
#include "qel/controls/Qeltversionlabel.h"

#include "vcl/rtl/properties.h"

namespace qel {

const vcl::TClass& TQELVersionLabel::Class() {
  using T = TQELVersionLabel;
  using namespace vcl;
  static const TClass info = Describe<T, TQELComputedLabel>(
      "qel::TQELVersionLabel", "qel/controls/Qeltversionlabel.h",
      {
          Inherit(LabelProperties),
          Property<&T::Filename, &T::SetFilename>("Filename").Default(""),
          Property<&T::Item, &T::SetItem>("Item").Default(viFileVersion),
          Inherit("Prefix"),
          Inherit("Suffix"),
          Inherit("Caption"),
      });
  return info;
}

TQELVersionLabel::TQELVersionLabel(vcl::TComponent* owner) : TQELComputedLabel(owner) {
  HearOnlyAsked<TQELVersionLabel>();
  Refresh();
}

void TQELVersionLabel::SetFilename(const std::string& fileName) {
  FFilename = fileName;
  Refresh();
}

void TQELVersionLabel::SetItem(TQELVersionItem item) {
  FItem = item;
  Refresh();
}

std::string TQELVersionLabel::ComputeText() const { return QELFileVersion(FFilename, FItem); }

}  // namespace qel
