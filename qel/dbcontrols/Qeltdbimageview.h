// TQELDBImageView: a picture in a field, and files.
#pragma once

#include <memory>
#include <string>

#include "qel/core/Qelcomponent.h"
#include "vcl/dbctrls/dbimage.h"

namespace qel {

/// Shows the picture in a field of the current record as TDBImage does: BMP, PNG, JPEG, icons and
/// the first image of a GIF. What is no picture shows its size in bytes.
class QEL_API TQELDBImageView : public vcl::TDBImage {
 public:
  explicit TQELDBImageView(vcl::TComponent* owner);
  ~TQELDBImageView() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// What the control says about the package.
  TQELAbout* About() const { return FAbout.get(); }

  /// Takes the file's picture over as what the user changes. Raises what reading it raises, and
  /// EDatabaseError where the record cannot be edited; the field is then as before.
  void LoadFromFile(const std::string& fileName);
  /// Saves the field's bytes as they are, after what has been changed is written into it. Raises
  /// EDatabaseError where there are none, and what writing the file raises.
  void SaveToFile(const std::string& fileName);

 protected:
  std::string NoteFor(const std::string& bytes, const std::string& error) const override;

 private:
  std::unique_ptr<TQELAbout> FAbout;
};

}  // namespace qel
