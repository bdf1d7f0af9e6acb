// The places in a form's unit that the unit writer knows: the class's members, its published
// table, its methods' bodies.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ide/cpptext.h"

namespace ide {

/// A member of the class.
struct TClassMember {
  enum class TSort { Field, Method };
  TSort Sort;
  std::string_view Name;
  std::size_t First, Last;  // Its tokens.
  std::size_t Star = 0;     // A field's asterisk; its class stands before it.
  bool Shared = false;      // Declared together with others.
};

/// The class in its header.
struct TClassPart {
  std::size_t Open, Close;            // The braces' tokens.
  std::vector<TClassMember> Members;  // Fields that are pointers, and methods.
  std::size_t PrivateLabel = 0;       // The colon behind the first `private`; 0 when there is none.

  const TClassMember* Find(std::string_view name) const;
};

/// True when the text declares what the class holds.
bool HasClass(const TCppText& text, std::string_view className);
/// Raises EUnitError when the text has not exactly one.
TClassPart FindClass(const TCppText& text, const std::string& className);

/// A line of the published table: a field's or a handler's.
struct TTableEntry {
  TClassMember::TSort Sort;
  std::string Name;
  std::size_t First, Last;  // Its tokens, without the comma.
};

struct TTablePart {
  std::size_t Open, Close;           // The braces' tokens.
  std::vector<TTableEntry> Entries;  // Fields and handlers.
};
/// Raises EUnitError when the text has not exactly one.
TTablePart FindTable(const TCppText& text, const std::string& className);

/// A method's definition.
struct TMethodBody {
  std::size_t First = 0, Open = 0, Close = 0;  // Its first token and its braces'; 0 for none.
  explicit operator bool() const { return Close != 0; }
};
TMethodBody FindBody(const TCppText& text, std::string_view className, std::string_view method);

/// A method without a result, as its definition has it.
struct TMethod {
  std::string Name;
  std::string Parameters;  // With the parentheses.
};
/// All of the class that the text defines outside of it.
std::vector<TMethod> FindMethods(const TCppText& text, std::string_view className);

/// The closing brace of the innermost namespace that the token is in; Count() for none.
std::size_t EndOfNamespace(const TCppText& text, std::size_t token);

}  // namespace ide
