#include "host/designintf/designer.h"

namespace vcl {

TDesigner::~TDesigner() = default;

}  // namespace vcl
