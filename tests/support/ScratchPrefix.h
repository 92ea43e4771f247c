#pragma once
// A Wine-style prefix in a temporary folder, with drive_c/windows and the
// dosdevices/c: link, made the current WINEPREFIX for the life of the object;
// the office standard in force is the file standardPath() beside it.

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

namespace brimo::test {

class ScratchPrefix {
public:
    ScratchPrefix();
    ~ScratchPrefix();

    QString root() const { return dir_.path(); }
    QString standardPath() const { return root() + QStringLiteral("/standard.ini"); }
    // Native path of a text such as "C:\Zorel\Var\Brimo.ini".
    QString native(const QString& windowsPath) const;
    // Writes raw bytes to a Windows path, creating its folders.
    void write(const QString& windowsPath, const QByteArray& bytes) const;
    // Reads raw bytes; empty when missing.
    QByteArray read(const QString& windowsPath) const;
    bool exists(const QString& windowsPath) const;
    void makeFolder(const QString& windowsPath) const;

    // zorel.ini with the given Zorel, Variables and actuel values.
    void writeZorelIni(const QString& zorel, const QString& variables, const QString& actuel) const;

private:
    QTemporaryDir dir_;
    QByteArray previous_;
    bool hadPrevious_ = false;
};

// The text in Windows-1252 (for file contents written by tests).
QByteArray cp1252(const char* utf8);

} // namespace brimo::test
