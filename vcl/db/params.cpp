// TParam and TParams: the parameters of an SQL text, and finding them in it.
#include "vcl/db/params.h"

#include <algorithm>

#include "vcl/db/field.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

bool IsWord(char c) {
  return c == '_' || (c & 0x80) || IsValidIdent(Concat("_", std::string(1, c)));
}

/// What begins and ends a part of an SQL text in which nothing is a parameter. Casts are such too.
constexpr std::string_view Fences[][2] = {{"'", "'"},   {"\"", "\""}, {"`", "`"}, {"[", "]"},
                                          {"--", "\n"}, {"/*", "*/"}, {"::", ""}};

/// The length of the part that the text begins with, 0 when it begins with none of them. One that
/// does not end is all the rest.
std::size_t FencedLength(std::string_view text) {
  for (const auto& [begin, end] : Fences) {
    if (!text.starts_with(begin)) continue;
    const std::size_t found = text.find(end, begin.size());
    return found == text.npos ? text.size() : found + end.size();
  }
  return 0;
}

}  // namespace

const TClass& TParam::Class() {
  using T = TParam;
  static const TClass info =
      Describe<T, TCollectionItem>("vcl::TParam", "vcl/db/db.h",
                                   {
                                       Property<&T::DataType, &T::SetDataType>("DataType"),
                                       Property<&T::Name, &T::SetName>("Name"),
                                   });
  return info;
}

void TParam::Set(TFieldType dataType, TFieldValue value) {
  FDataType = dataType;
  FValue = std::move(value);
}

void TParam::AssignField(const TField& field) { Set(field.DataType(), field.Value()); }

void TParam::Assign(const TPersistent* source) {
  const auto* other = dynamic_cast<const TParam*>(source);
  if (!other) return TCollectionItem::Assign(source);
  FName = other->FName;
  FDataType = other->FDataType;
  FValue = other->FValue;
}

const TClass& TParams::Class() {
  static const TClass info = Describe<TParams, TCollection>("vcl::TParams", "vcl/db/db.h", {});
  return info;
}

TParam* TParams::FindParam(std::string_view name) const {
  for (int i = 0; i < Count(); ++i) {
    if (SameText(Items(i)->Name(), name)) return Items(i);
  }
  return nullptr;
}

TParam* TParams::ParamByName(std::string_view name) const {
  if (TParam* param = FindParam(name)) return param;
  throw EDatabaseError(Concat("Parameter '", name, "' not found"));
}

std::string TParams::Parse(std::string_view sql) {
  std::string text;
  FPlaces.clear();
  while (!sql.empty()) {
    std::size_t length = FencedLength(sql);
    if (length == 0 && sql[0] == '?') {
      FPlaces.push_back(std::to_string(FPlaces.size() + 1));
    } else if (length == 0 && sql[0] == ':') {
      const std::string_view name = sql.substr(
          1, static_cast<std::size_t>(std::find_if_not(sql.begin() + 1, sql.end(), IsWord) -
                                      sql.begin() - 1));
      if (!name.empty()) {
        FPlaces.emplace_back(name);
        text += '?';
        sql.remove_prefix(name.size() + 1);
        continue;
      }
    }
    length = std::max<std::size_t>(length, 1);
    text += sql.substr(0, length);
    sql.remove_prefix(length);
  }
  for (const std::string& place : FPlaces) {
    if (!FindParam(place)) static_cast<TParam*>(Add())->SetName(place);
  }
  for (int i = Count() - 1; i >= 0; --i) {
    const auto named = [&](const std::string& place) { return SameText(place, Items(i)->Name()); };
    if (std::ranges::none_of(FPlaces, named)) Delete(i);
  }
  return text;
}

}  // namespace vcl
