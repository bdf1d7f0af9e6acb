// qelref: loads the package as a form designer does and prints the reference of what it has.
#include <cstdio>
#include <exception>
#include <string>

#include "tools/qelref/reference.h"
#include "vcl/designintf/package.h"
#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/filenames.h"

namespace {

/// The package lies beside the program, wherever the program is started from.
std::string PackageFile() {
  return vcl::ExtractFilePath(vcl::BaseApplication().ExeName()) + "qel.dll";
}

int Usage() {
  std::fputs("qelref --html | --json | --markdown | --missing [PACKAGE]\n", stderr);
  return 2;
}

/// The format of that name; null when there is none. What is missing is what has no doc comment.
std::string (*FormatOf(const std::string& name))(const qelref::TReference&) {
  if (name == "--html") return qelref::ToHtml;
  if (name == "--json") return qelref::ToJson;
  if (name == "--markdown") return qelref::ToMarkdown;
  return name == "--missing" ? qelref::WithoutSentence : nullptr;
}

}  // namespace

int main(int argc, char** argv) {
  const auto format = FormatOf(argc > 1 ? argv[1] : "");
  if (!format || argc > 3) return Usage();
  try {
    const vcl::TPackage package(argc > 2 ? argv[2] : PackageFile());
    const std::string text = format(qelref::ReferenceOf(package));
    if (std::fputs(text.c_str(), stdout) < 0 || std::fflush(stdout) != 0) return 1;
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "qelref: %s\n", error.what());
    return 1;
  }
}
