#pragma once

#include "app/BrimoForm.h"

namespace brimo {

class CGeneralForm : public BrimoForm {
    Q_OBJECT
public:
    explicit CGeneralForm(MainModule& module);
};

} // namespace brimo
