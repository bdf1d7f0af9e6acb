// TQELDBIndexLookup: an edit that goes to the record that is typed.
#pragma once

#include <memory>
#include <string>

#include "qel/core/Qelcomponent.h"
#include "vcl/db/datasource.h"
#include "vcl/stdctrls/edit.h"

namespace qel {

/// As one types, goes to the first record whose field begins with that, but for case. Where the
/// records are ordered by the field, only a few are looked at. The record that is being edited is
/// posted first, as by every move; what is typed is written nowhere.
class QEL_API TQELDBIndexLookup : public vcl::TCustomEdit {
 public:
  explicit TQELDBIndexLookup(vcl::TComponent* owner);
  ~TQELDBIndexLookup() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  /// Searches nothing.
  void SetTextBuf(const char* text) override;

  /// What the edit says about the package.
  TQELAbout* About() const { return FAbout.get(); }
  vcl::TDataSource* DataSource() const { return FLink.DataSource(); }
  /// The source of the data set that is searched, which is not owned; null for none.
  void SetDataSource(vcl::TDataSource* source);
  const std::string& DataField() const { return FDataField; }
  /// The field that is searched; without it nothing is.
  void SetDataField(const std::string& name) { FDataField = name; }
  bool Beep() const { return FBeep; }
  /// True: a sound tells that no record begins so.
  void SetBeep(bool beep) { FBeep = beep; }

  /// Goes to the first record whose field begins with the text. False when there is none: the
  /// current record stays.
  bool Find(const std::string& text);

  /// No record begins with what has been typed.
  vcl::TNotifyEvent OnNotFound;

 protected:
  void Change() override;

 private:
  bool FindShown(const std::string& text);

  std::unique_ptr<TQELAbout> FAbout;
  vcl::TDataLink FLink;
  std::string FDataField;
  bool FBeep = false;
  bool FByCode = false;  // The text is being set.
};

}  // namespace qel
