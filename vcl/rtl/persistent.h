// TPersistent: objects with published properties that can be copied and kept in form files.
#pragma once

#include "vcl/rtl/object.h"

namespace vcl {

class TFiler;
class TReader;
class TWriter;

/// What can be copied from another object, and published in form files.
class VCL_API TPersistent : public TObject {
 public:
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  /// Copies the other object's state into this one. A class overrides it for the sources that it
  /// knows and leaves others to the inherited method, which asks the source (`AssignTo`). Raises
  /// EConvertError when neither knows how. Null is answered in one way, by this method and by every
  /// setter of an object that its owner has always, be it copied or taken over: a picture
  /// (TGraphic, TPicture, TImageList) is empty afterwards, everything else refuses null with
  /// EConvertError and stays as it was.
  virtual void Assign(const TPersistent* source);

 protected:
  /// Copies this object into one of a class that does not know this one.
  virtual void AssignTo(TPersistent* dest) const;
  /// Declares what the object keeps in form files besides its published properties.
  virtual void DefineProperties(TFiler& filer);
  friend class TReader;
  friend class TWriter;
};

}  // namespace vcl
