// TQELVersionLabel: a label with one entry of a file's version information.
#pragma once

#include <string>

#include "qel/controls/Qeltlabel.h"
#include "qel/core/Qelfileversion.h"

namespace qel {

/// A label that shows an entry of a file's version information, such as the program's own version.
/// It shows nothing where the file has no such entry.
class QEL_API TQELVersionLabel : public TQELComputedLabel {
 public:
  explicit TQELVersionLabel(vcl::TComponent* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  const std::string& Filename() const { return FFilename; }
  /// The file whose version information is shown; the program's own where it is empty.
  void SetFilename(const std::string& fileName);
  TQELVersionItem Item() const { return FItem; }
  /// The entry that is shown.
  void SetItem(TQELVersionItem item);

 protected:
  std::string ComputeText() const override;

 private:
  std::string FFilename;
  TQELVersionItem FItem = viFileVersion;
};

}  // namespace qel
