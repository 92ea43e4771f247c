#pragma once
// Files of expected bytes under tests/golden/: the Lisp and profile files as
// the add-on and the next start read them, and the forms as they are built.

#include <QByteArray>
#include <QString>

namespace brimo::test {

QByteArray Golden(const QString& name);

// Expects `actual` to equal the golden file, and names the first line that
// differs. With BRIMO_UPDATE_GOLDEN=1 in the environment it writes the file
// instead: after a deliberate change, whose diff is then reviewed.
void ExpectGolden(const QString& name, const QByteArray& actual);

} // namespace brimo::test
