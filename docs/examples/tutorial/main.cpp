#include "mainform.h"
#include "vcl/vcl.h"

int main() {
  vcl::Application()->Initialize();
  vcl::Application()->SetTitle("First steps");
  vcl::Application()->CreateForm<TMainForm>();
  return vcl::Application()->Run();
}
