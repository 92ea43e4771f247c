#include "support/Golden.h"

#include <QFile>
#include <QList>
#include <gtest/gtest.h>

namespace brimo::test {

static QString pathOf(const QString& name) { return QStringLiteral(BRIMO_GOLDEN_DIR "/") + name; }

QByteArray Golden(const QString& name) {
    QFile file(pathOf(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << "no golden file " << name.toStdString();
    return file.readAll();
}

void ExpectGolden(const QString& name, const QByteArray& actual) {
    if (qEnvironmentVariableIntValue("BRIMO_UPDATE_GOLDEN") == 1) {
        QFile file(pathOf(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(actual);
        return;
    }
    const QByteArray expected = Golden(name);
    if (expected == actual) return;
    const QList<QByteArray> want = expected.split('\n'), got = actual.split('\n');
    qsizetype line = 0;
    while (line < want.size() && line < got.size() && want[line] == got[line]) ++line;
    ADD_FAILURE() << name.toStdString() << " differs at line " << line + 1 << ":\n  expected: "
                  << want.value(line).toStdString() << "\n  actual:   " << got.value(line).toStdString();
}

} // namespace brimo::test
