#pragma once
// The reference side of the Wine comparisons: the Windows programs in
// ProfileOracle.cpp and NumberOracle.cpp run under Wine in one scratch prefix
// for the whole test run. Both sides speak the same line protocol, with
// fields escaped by encodeField.

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QString>
#include <QTemporaryDir>

namespace brimo::winetest {

// Empty when Wine and the reference programs are at hand; otherwise why the
// comparison cannot run.
QString missingTools();

QString profileOracle();
QString numberOracle();

// A byte field of the protocol: '%' and two hex digits for a byte that is no
// printable ASCII character (and for '%'), "%-" for the empty field.
QByteArray encodeField(QByteArrayView bytes);
QByteArray decodeField(QByteArrayView field);

class WineSession {
public:
    static WineSession& instance();

    // Makes the scratch prefix and starts Wine in it once (the slow part).
    bool start(QString* error);
    // Stops the prefix's wineserver and removes the prefix.
    void stop();

    // Runs a Windows program with `input` on its standard input under the
    // given locale; the lines of its standard output.
    QList<QByteArray> run(const QString& program, const QByteArray& input, const QString& locale,
                          QString* error) const;

    // The Windows name of a native path (Wine's Z: drive is the root).
    static QByteArray windowsPath(const QString& nativePath);

private:
    QTemporaryDir prefix_;
    bool started_ = false;
};

} // namespace brimo::winetest
