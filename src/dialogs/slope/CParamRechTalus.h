#pragma once

#include "app/BrimoForm.h"

namespace brimo {

class CParamRechTalus : public BrimoForm {
    Q_OBJECT
public:
    explicit CParamRechTalus(MainModule& module);
};

} // namespace brimo
