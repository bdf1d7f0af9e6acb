// TQELDBImageView: its table, and files.
#include "qel/dbcontrols/Qeltdbimageview.h"

#include "vcl/rtl/files.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace qel {

const vcl::TClass& TQELDBImageView::Class() {
  using T = TQELDBImageView;
  using namespace vcl;
  static const TClass info =
      Describe<T, TDBImage>("qel::TQELDBImageView", "qel/dbcontrols/Qeltdbimageview.h",
                            {
                                vcl::ReadOnly<&T::About>("About"),
                                Inherit("ParentColor").Default(false),
                                Inherit("Proportional").Default(true),
                            });
  return info;
}

TQELDBImageView::TQELDBImageView(vcl::TComponent* owner)
    : TDBImage(owner), FAbout(std::make_unique<TQELAbout>(this)) {
  SetProportional(true);
  HearOnlyAsked<TQELDBImageView>();
}

TQELDBImageView::~TQELDBImageView() { AnnounceEnd(); }

std::string TQELDBImageView::NoteFor(const std::string& bytes, const std::string& /*error*/) const {
  return vcl::Concat(std::to_string(bytes.size()), bytes.size() == 1 ? " byte" : " bytes");
}

void TQELDBImageView::LoadFromFile(const std::string& fileName) {
  vcl::TPicture picture;
  picture.LoadFromFile(fileName);
  SetPicture(&picture);
}

void TQELDBImageView::SaveToFile(const std::string& fileName) {
  Link().UpdateRecord();
  const vcl::TField* const field = Field();
  if (!field || field->IsNull()) {
    throw vcl::EDatabaseError(
        vcl::Concat("The field '", DataField(), "' holds nothing to save to ", fileName));
  }
  vcl::ReplaceWholeFile(fileName, field->AsString());
}

}  // namespace qel
