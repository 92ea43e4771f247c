#pragma once
// Cases kept as rows of tab-separated files in tests/model/data/. A line
// starting with '#' is a comment; in a field, \r \n \t \\ and \xHH stand for
// their bytes.

#include <QByteArray>
#include <QFile>
#include <QList>
#include <gtest/gtest.h>

namespace brimo::test {

inline QByteArray Unescaped(const QByteArray& field) {
    QByteArray out;
    for (qsizetype i = 0; i < field.size(); ++i) {
        const char c = field[i] == '\\' && i + 1 < field.size() ? field[++i] : 0;
        if (c == 'x') out += char(field.mid(i + 1, 2).toInt(nullptr, 16)), i += 2;
        else out += !c ? field[i] : c == 'r' ? '\r' : c == 'n' ? '\n' : c == 't' ? '\t' : c;
    }
    return out;
}

inline QList<QList<QByteArray>> TsvRows(const char* name) {
    QFile file(QStringLiteral(BRIMO_MODEL_DATA "/") + QLatin1String(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    QList<QList<QByteArray>> rows;
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (line.isEmpty() || line.startsWith('#')) continue;
        rows.append(QList<QByteArray>());
        for (const QByteArray& field : line.split('\t')) rows.back().append(Unescaped(field));
    }
    EXPECT_FALSE(rows.isEmpty()) << name;
    return rows;
}

} // namespace brimo::test
