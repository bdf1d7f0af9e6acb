// TQELStringHolder: its lists, the names in texts, and the file.
#include "qel/services/Qeltstringholder.h"

#include "vcl/rtl/files.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace qel {

namespace {

/// The value of a line "name=value", which may be empty; nothing without such a line.
std::optional<std::string> ValueIn(const vcl::TStrings& lines, const std::string& name) {
  const int index = name.empty() ? -1 : lines.IndexOfName(name);
  if (index < 0) return std::nullopt;
  const std::string line = lines.Strings(index);
  return line.substr(line.find('=') + 1);
}

// In a file, "[name]" begins a group, so that a line of a list may not begin like that. One that
// does, or that would after some "\", has one "\" more there; all other lines are as they are.

bool LooksLikeGroup(const std::string& line, std::size_t from) {
  const std::size_t first = line.find_first_not_of('\\', from);
  return first != std::string::npos && line[first] == '[';
}

std::string Written(const vcl::TStrings& lines) {
  std::string text;
  for (int i = 0; i < lines.Count(); ++i) {
    const std::string line = lines.Strings(i);
    text += vcl::Concat(LooksLikeGroup(line, 0) ? "\\" : "", line, "\r\n");
  }
  return text;
}

std::string Read(const std::string& line) {
  return line.starts_with('\\') && LooksLikeGroup(line, 1) ? line.substr(1) : line;
}

bool IsGroup(const std::string& line) { return line.starts_with('[') && line.ends_with(']'); }

}  // namespace

// Groups.

const vcl::TClass& TQELStringGroup::Class() {
  using T = TQELStringGroup;
  using namespace vcl;
  static const TClass info =
      Describe<T, TCollectionItem>("qel::TQELStringGroup", "qel/services/Qeltstringholder.h",
                                   {
                                       Property<&T::Name, &T::SetName>("Name").Default(""),
                                       Property<&T::Strings, &T::SetStrings>("Strings"),
                                   });
  return info;
}

TQELStringGroup::TQELStringGroup(vcl::TCollection* collection)
    : TCollectionItem(collection), FStrings(std::make_unique<vcl::TStringList>()) {}

TQELStringGroup::~TQELStringGroup() = default;

void TQELStringGroup::Assign(const vcl::TPersistent* source) {
  const auto* group = dynamic_cast<const TQELStringGroup*>(source);
  if (!group) return TCollectionItem::Assign(source);
  SetStrings(group->Strings());
  SetName(group->Name());
}

std::string TQELStringGroup::DisplayName() const {
  return FName.empty() ? TCollectionItem::DisplayName() : FName;
}

void TQELStringGroup::SetName(const std::string& name) {
  if (name.find_first_of("\r\n") != std::string::npos) return;
  FName = name;
  Changed(false);
}

const vcl::TClass& TQELStringGroups::Class() {
  static const vcl::TClass info = vcl::Describe<TQELStringGroups, TCollection>(
      "qel::TQELStringGroups", "qel/services/Qeltstringholder.h", {});
  return info;
}

TQELStringGroups::TQELStringGroups() : TCollection(TQELStringGroup::Class()) {}

TQELStringGroup* TQELStringGroups::Add() {
  return static_cast<TQELStringGroup*>(TCollection::Add());
}

TQELStringGroup* TQELStringGroups::Groups(int index) const {
  return static_cast<TQELStringGroup*>(Items(index));
}

TQELStringGroup* TQELStringGroups::Find(const std::string& name) const {
  for (int i = 0; i < Count(); ++i) {
    if (vcl::AnsiSameText(Groups(i)->Name(), name)) return Groups(i);
  }
  return nullptr;
}

// The holder.

const vcl::TClass& TQELStringHolder::Class() {
  using T = TQELStringHolder;
  using namespace vcl;
  static const TClass info =
      Describe<T, TQELComponent>("qel::TQELStringHolder", "qel/services/Qeltstringholder.h",
                                 {
                                     Property<&T::Groups, &T::SetGroups>("Groups"),
                                     Property<&T::Strings, &T::SetStrings>("Strings"),
                                 });
  return info;
}

TQELStringHolder::TQELStringHolder(vcl::TComponent* owner)
    : TQELComponent(owner),
      FStrings(std::make_unique<vcl::TStringList>()),
      FGroups(std::make_unique<TQELStringGroups>()) {}

TQELStringHolder::~TQELStringHolder() { AnnounceEnd(); }

// Both the names of groups and those of values may have points in them.
std::optional<std::string> TQELStringHolder::Value(const std::string& name) const {
  std::optional<std::string> value = ValueIn(*FStrings, name);
  std::size_t point = name.find('.');
  for (; !value && point != std::string::npos; point = name.find('.', point + 1)) {
    const TQELStringGroup* const group = FGroups->Find(name.substr(0, point));
    if (group) value = ValueIn(*group->Strings(), name.substr(point + 1));
  }
  return value;
}

std::string TQELStringHolder::Expand(const std::string& text) const {
  std::string expanded;
  std::size_t at = 0;
  for (;;) {
    const std::size_t first = text.find('%', at);
    const std::size_t second = first == std::string::npos ? first : text.find('%', first + 1);
    if (second == std::string::npos) return expanded + text.substr(at);
    expanded += text.substr(at, first - at);
    const std::string name = text.substr(first + 1, second - first - 1);
    const auto value = name.empty() ? "%" : Value(name);
    // The second sign of what is no name may be the first one of what is.
    expanded += value ? *value : "%" + name;
    at = value ? second + 1 : second;
  }
}

void TQELStringHolder::LoadFromFile(const std::string& fileName) {
  vcl::TStringList lines, strings;
  lines.LoadFromFile(fileName);
  TQELStringGroups groups;
  vcl::TStrings* list = &strings;
  for (int i = 0; i < lines.Count(); ++i) {
    const std::string line = lines.Strings(i);
    if (IsGroup(line)) {
      TQELStringGroup* const group = groups.Add();
      group->SetName(line.substr(1, line.size() - 2));
      list = group->Strings();
    } else {
      list->Add(Read(line));
    }
  }
  FStrings->Assign(&strings);
  FGroups->Assign(&groups);
}

void TQELStringHolder::SaveToFile(const std::string& fileName) const {
  std::string text = Written(*FStrings);
  for (int i = 0; i < FGroups->Count(); ++i) {
    const TQELStringGroup& group = *FGroups->Groups(i);
    text += vcl::Concat("[", group.Name(), "]\r\n", Written(*group.Strings()));
  }
  vcl::ReplaceWholeFile(fileName, text);
}

}  // namespace qel
