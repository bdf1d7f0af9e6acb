// Components as the texts of their form files, and lists of strings as lines.
#pragma once

#include <string>
#include <vector>

#include "vcl/rtl/classes.h"

/// What a form file of the component says.
inline std::string FormText(vcl::TComponent* root, const std::string& className = {}) {
  vcl::TStringStream stream;
  vcl::WriteComponentText(stream, root, className);
  return stream.DataString();
}

/// Reads a text or binary form into the root, or makes one.
inline vcl::TComponent* ReadForm(const std::string& form, vcl::TComponent* root = nullptr) {
  vcl::TStringStream stream(form);
  return vcl::ReadComponentFile(stream, root);
}

inline std::vector<std::string> Lines(const vcl::TStrings& list) {
  std::vector<std::string> lines;
  for (int i = 0; i < list.Count(); ++i) lines.push_back(list.Strings(i));
  return lines;
}
