// TQELStringHolder: texts that a program needs, kept on its form; TQELStringGroups and
// TQELStringGroup, the lists that have names.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "qel/core/Qelcomponent.h"
#include "vcl/rtl/collection.h"
#include "vcl/rtl/strings.h"

namespace qel {

/// A list of texts with a name.
class QEL_API TQELStringGroup : public vcl::TCollectionItem {
 public:
  explicit TQELStringGroup(vcl::TCollection* collection);
  ~TQELStringGroup() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  void Assign(const vcl::TPersistent* source) override;
  std::string DisplayName() const override;

  const std::string& Name() const { return FName; }
  /// What the list is called. A name with a line break is not taken.
  void SetName(const std::string& name);
  vcl::TStrings* Strings() const { return FStrings.get(); }
  /// The group's lines; a line "name=value" is a value of that name.
  void SetStrings(const vcl::TStrings* strings) { FStrings->Assign(strings); }

 private:
  std::string FName;
  std::unique_ptr<vcl::TStringList> FStrings;
};

/// The lists of a string holder that have names.
class QEL_API TQELStringGroups : public vcl::TCollection {
 public:
  TQELStringGroups();
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  TQELStringGroup* Add();
  /// Raises EListError outside 0 to Count - 1.
  TQELStringGroup* Groups(int index) const;
  /// The first group of that name, in any case of its letters; null for none.
  TQELStringGroup* Find(const std::string& name) const;
};

/// Holds texts: lines, values that have a name ("name=value"), and named lists of both.
class QEL_API TQELStringHolder : public TQELComponent {
 public:
  explicit TQELStringHolder(vcl::TComponent* owner);
  ~TQELStringHolder() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// The text with each %name% replaced by the value of that name: one of Strings, or, as
  /// %group.name%, of a group. "%%" is a percent sign. What is no known name stays as it is; names
  /// in values are not replaced.
  std::string Expand(const std::string& text) const;
  /// The value that Expand puts in the place of the name; nothing for an unknown one.
  std::optional<std::string> Value(const std::string& name) const;
  /// Replaces Strings and Groups by those of a text file: lines, and behind each line "[name]"
  /// those of the group. Raises EFOpenError or EReadError, and changes nothing then.
  void LoadFromFile(const std::string& fileName);
  /// Replaces the file as a whole by one in UTF-8 that LoadFromFile reads; a line of a list that
  /// begins with "[" gets a "\" before it there. Raises EInOutError.
  void SaveToFile(const std::string& fileName) const;

  vcl::TStrings* Strings() const { return FStrings.get(); }
  /// The lines; a line "name=value" is a value of that name.
  void SetStrings(const vcl::TStrings* strings) { FStrings->Assign(strings); }
  TQELStringGroups* Groups() const { return FGroups.get(); }
  /// Lists that have a name.
  void SetGroups(const TQELStringGroups* groups) { FGroups->Assign(groups); }

 private:
  std::unique_ptr<vcl::TStringList> FStrings;
  std::unique_ptr<TQELStringGroups> FGroups;
};

}  // namespace qel
