#include "vcl/designintf/designer.h"

namespace vcl {

TDesigner::~TDesigner() = default;

}  // namespace vcl
