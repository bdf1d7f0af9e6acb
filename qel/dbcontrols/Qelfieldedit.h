// TQELFieldEdit: what the package's edits of a field have in common.
#pragma once

#include <string>

#include "qel/dbcontrols/Qelfieldtext.h"
#include "vcl/dbctrls/fieldcontrol.h"

namespace qel {

/// An edit in which the user types a field's text (see TFieldTextEditor). A field of a kind that
/// does not fit is shown, and cannot be changed.
template <class TEdit>
class TQELFieldEdit : public vcl::TFieldTextEditor<TEdit> {
 public:
  bool ReadOnly() const { return FReadOnly; }
  /// True: the user cannot change the field here.
  void SetReadOnly(bool readOnly) {
    FReadOnly = readOnly;
    UpdateReadOnly();
  }

 protected:
  explicit TQELFieldEdit(vcl::TComponent* owner) : vcl::TFieldTextEditor<TEdit>(owner) {}
  /// Whether a field of this kind can be edited here.
  virtual bool Fits(vcl::TFieldType kind) const { return kind != vcl::ftBlob; }
  /// What is shown of a field that fits.
  virtual std::string ShownText(const vcl::TField& field) const {
    return this->Inside() ? field.Text() : field.DisplayText();
  }
  void ShowField() override {
    UpdateReadOnly();
    this->AllowTyping();
    const vcl::TField* const field = this->Field();
    this->ShowTheText(FieldFits() ? ShownText(*field) : QELFieldText(field));
  }

 private:
  bool FieldFits() const { return this->Field() && Fits(this->Field()->DataType()); }
  void UpdateReadOnly() { this->Link().SetReadOnly(FReadOnly || (this->Field() && !FieldFits())); }

  bool FReadOnly = false;
};

}  // namespace qel
