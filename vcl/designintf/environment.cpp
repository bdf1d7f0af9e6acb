// The add-ins that packages have registered.
#include "vcl/designintf/environment.h"

#include "vcl/designintf/registered.h"

namespace vcl {

TEnvironment::~TEnvironment() = default;

TExpert::~TExpert() = default;

std::vector<TExpertClass>& detail::Experts() {
  static std::vector<TExpertClass> experts;
  return experts;
}

void RegisterExpertClass(const TExpertClass& expert) { detail::Experts().push_back(expert); }

const std::vector<TExpertClass>& RegisteredExperts() { return detail::Experts(); }

}  // namespace vcl
