// TApplicationListener: who hears.
#include "vcl/forms/applicationlistener.h"

namespace vcl {

std::vector<TApplicationListener*>& TApplicationListener::All() {
  static std::vector<TApplicationListener*> all;
  return all;
}

TApplicationListener::TApplicationListener() { All().push_back(this); }
TApplicationListener::~TApplicationListener() { std::erase(All(), this); }

}  // namespace vcl
