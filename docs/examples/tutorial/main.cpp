#include "vcl/vcl.h"
#include "mainform.h"

int main() {
  vcl::Application()->Initialize();
  vcl::Application()->SetTitle("First steps");
  vcl::Application()->CreateForm<TMainForm>();
  return vcl::Application()->Run();
}
