#pragma once
// The drawing variables dialog: a large tabbed form of design values.
// Nothing loads its fields and nothing stores them; its buttons do nothing.

#include "forms/BrimoForm.h"

namespace brimo {

class CVarGlobale : public BrimoForm {
    Q_OBJECT
public:
    CVarGlobale();
};

} // namespace brimo
