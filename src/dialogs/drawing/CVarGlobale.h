#pragma once

#include "app/BrimoForm.h"

namespace brimo {

class CVarGlobale : public BrimoForm {
    Q_OBJECT
public:
    explicit CVarGlobale(MainModule& module);
};

} // namespace brimo
