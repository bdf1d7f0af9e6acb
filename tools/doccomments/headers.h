// What headers say of their classes and of the members of these.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace doccomments {

/// A class as its header has it.
struct TClassDoc {
  /// The first sentence of its doc comment; empty without one.
  std::string Sentence;
  /// Its ancestors, as they are written.
  std::vector<std::string> Bases;
  /// The first sentence of each commented member, by the member's name; of several of one name, the
  /// first that has a comment.
  std::map<std::string, std::string> Members;
};

/// Classes by their names, with the names of what is around them.
using TClassDocs = std::map<std::string, TClassDoc>;

/// Adds the classes that the header defines.
void ReadHeader(std::string_view source, TClassDocs& classes);
/// The class of that name as it is understood in the scope: in it, or in one around it. Null when
/// there is none.
const TClassDoc* FindClass(const TClassDocs& classes, std::string scope, const std::string& name);
/// The sentence of the member, of the class or the nearest ancestor that has one; empty without.
std::string SentenceOf(const TClassDocs& classes, const std::string& scope,
                       const std::string& className, const std::string& member);
/// What comes before the first full stop that ends a sentence, with it; at most a paragraph.
std::string FirstSentence(const std::string& comment);

}  // namespace doccomments
