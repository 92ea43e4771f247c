#pragma once
// Where the Windows folder lies on Linux, and how a Windows path text is
// mapped to a native path. The program builds its paths as texts with
// backslashes; only when a file is opened or tested is the text mapped.

#include <QString>

namespace brimo {

// The Wine prefix that a run works on: the folder that holds the drives of
// a Windows installation (dosdevices/x:). It is handed down as a value, so
// that one process can work on several prefixes in turn.
struct WinePrefix {
    QString folder; // the path that reaches it
    QString shown;  // how messages name it, where that differs

    // How messages name the prefix.
    QString name() const { return shown.isEmpty() ? folder : shown; }

    // $WINEPREFIX, or $HOME/.wine when WINEPREFIX is unset or empty. This is
    // the only place where the program reads its environment.
    static WinePrefix FromEnvironment();
    // A prefix named by the bytes of a command line or a list, as
    // DecodeNativeText left them. A folder whose name is no UTF-8 text, which
    // Qt's file functions cannot spell, is reached through a descriptor that
    // the process keeps open (/proc/self/fd/N) and shown with its odd bytes
    // as \xHH.
    static WinePrefix FromText(const QString& text);
};

// The bytes of a file name, an argument or a line as text: UTF-8, and each
// byte that is no part of UTF-8 kept as the code unit 0xDC00 + byte, so that
// EncodeNativeText gives the bytes back.
QString DecodeNativeText(QByteArrayView bytes);
QByteArray EncodeNativeText(const QString& text);

// The Windows folder as a Windows path text, without a trailing backslash
// ("C:\windows"), the way the platform reports it.
QString GetWindowsFolder();

// The folder of drive `letter` in the prefix: <prefix>/dosdevices/x:.
QString DriveFolder(const WinePrefix& prefix, QChar letter);

// Maps a Windows path text to a native path, as Windows resolves it:
//   "X:\..." and "X:..."  -> DriveFolder(X) + "/..."
//   "\..." "/..." "..."   -> on the current drive, C:, from its root
//   "\\..." "//..."       -> a network share: no native path (the empty text)
//   ""                   -> nothing (the empty text)
// '/' separates as '\' does and becomes '/'. "." is dropped and ".." takes
// back the name before it, never climbing above the drive's folder, so that
// every path lies in a drive of the prefix. Doubled separators are left to
// the file system; nothing else is normalised. A component that
// does not exist with that spelling is looked up without regard to case in
// its folder, as Windows finds names; a component that does not exist at all
// keeps the program's spelling (so a file being created takes that name).
QString ToNativePath(const WinePrefix& prefix, const QString& windowsPath);

// The same mapping without looking at the file system: the text only.
QString MapWindowsPathText(const WinePrefix& prefix, const QString& windowsPath);

} // namespace brimo
