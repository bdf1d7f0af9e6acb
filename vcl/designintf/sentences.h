// What a sentence says of each class and of each property and event that it publishes.
#pragma once

#include <map>
#include <string>

#include "vcl/rtl/object.h"

namespace vcl {

/// The first sentences of the headers' doc comments, which the build gathers in a text file
/// (tools/doccomments). A line of it is a class's name in C++, or that, a full stop and a
/// property's name; a tab; the sentence.
class VCL_API TSentences {
 public:
  TSentences() = default;
  /// Reads the file; nothing is known when there is none. Raises EInOutError when it cannot be
  /// read.
  explicit TSentences(const std::string& fileName);

  /// What the class is; empty when nothing is known.
  std::string Of(const TClass& aClass) const;
  /// What the class's property or event is, which an ancestor may have described; empty when
  /// nothing is known.
  std::string Of(const TClass& aClass, const std::string& property) const;

 private:
  std::map<std::string, std::string> FSentences;
};

/// The sentences in the file "sentences.txt" beside the program, read when they are first asked
/// for.
VCL_API const TSentences& Sentences();

}  // namespace vcl
