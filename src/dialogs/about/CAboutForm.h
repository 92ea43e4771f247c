#pragma once

#include "app/BrimoForm.h"

namespace brimo {

class CAboutForm : public BrimoForm {
    Q_OBJECT
public:
    explicit CAboutForm(MainModule& module);
};

} // namespace brimo
