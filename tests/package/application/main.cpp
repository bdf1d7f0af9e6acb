#include <iostream>

#include "host/rtl/strings.h"

int main() {
  vcl::TStringList list;
  list.SetCommaText("pear,apple");
  list.Sort();
  std::cout << list.CommaText() << '\n';
}
