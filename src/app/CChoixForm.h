#pragma once

#include "app/BrimoForm.h"

namespace brimo {

class CChoixForm : public BrimoForm {
    Q_OBJECT
public:
    explicit CChoixForm(MainModule& module);
};

} // namespace brimo
