#pragma once

#include <QIcon>

namespace brimo {

// The window icon of CGeneralForm: a sheet with tabs and a drawing frame.
QIcon GeneralWindowIcon();

} // namespace brimo
