// The jobs on files.
#include "bench/files.h"

#include <chrono>
#include <stdexcept>

#include "qel/shell/Qeltexplorerview.h"
#include "qel/shell/Qeltfilecollector.h"
#include "qel/shell/Qelttextfileview.h"
#include "qel/shell/Qelttextreplace.h"
#include "vcl/forms/application.h"
#include "vcl/forms/forms.h"

namespace bench {
namespace {

void Require(bool done, const char* what) {
  if (!done) throw std::runtime_error(what);
}

/// Milliseconds that the call takes.
template <class Call>
double Timed(const Call& call) {
  const auto begin = std::chrono::steady_clock::now();
  call();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin)
      .count();
}

double Collect(const std::string& folder) {
  qel::TQELFileCollector collector(nullptr);
  collector.SetFolder(folder);
  collector.SetRecursive(true);
  return Timed([&] {
    Require(collector.Execute() && collector.Files()->Count() >= 50000, "Files were not found");
  });
}

double Replace(const std::string& folder) {
  qel::TQELTextReplace replace(nullptr);
  for (int i = 0; i < 1000; ++i) {
    replace.Files()->Add(folder + "\\" + std::to_string(i) + ".txt");
  }
  replace.SetFind("alpha");
  replace.SetReplaceBy("omega");
  return Timed([&] {
    Require(replace.Execute() && replace.ChangedFiles() == 1000, "Texts were not replaced");
  });
}

class TShown {
 public:
  TShown() : Form(nullptr) {
    Form.SetBounds(0, 0, 800, 600);
    Form.Show();
  }
  vcl::TForm Form;
};

double First(const std::string& folder) {
  TShown shown;
  auto* const view = new qel::TQELTextFileView(&shown.Form);
  view->SetParent(&shown.Form);
  view->SetAlign(vcl::alClient);
  vcl::Application()->ProcessMessages();
  return Timed([&] {
    view->Open(folder + "\\large");
    view->Update();
  });
}

double Search(const std::string& folder) {
  TShown shown;
  auto* const view = new qel::TQELTextFileView(&shown.Form);
  view->SetParent(&shown.Form);
  view->SetAlign(vcl::alClient);
  view->Open(folder + "\\large");
  return Timed(
      [&] { Require(view->FindText("the very last line", true), "The line was not found"); });
}

double View(const std::string& folder) {
  TShown shown;
  auto* const view = new qel::TQELExplorerView(&shown.Form);
  view->SetParent(&shown.Form);
  view->SetAlign(vcl::alClient);
  vcl::Application()->ProcessMessages();
  return Timed([&] {
    view->GoTo(folder);
    view->Update();
    Require(view->Items()->Count() >= 50000, "Files are not listed");
  });
}

}  // namespace

double DoFilesJob(const std::string& job, const std::string& folder) {
  vcl::Application()->Initialize();
  if (job == "collect") return Collect(folder);
  if (job == "replace") return Replace(folder);
  if (job == "first") return First(folder);
  if (job == "search") return Search(folder);
  if (job == "view") return View(folder);
  throw std::runtime_error("There is no job " + job);
}

}  // namespace bench
