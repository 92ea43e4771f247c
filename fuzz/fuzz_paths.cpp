// The mapping of Windows path texts into a Wine prefix: drives go under
// dosdevices, backslashes become slashes, a path always lies under its
// drive's folder with "." and ".." resolved, shares map to nothing, and the
// lookup of names changes only their case.

#include "Check.h"
#include "platform/WindowsPaths.h"

#include <QDir>
#include <QTemporaryDir>

namespace {

QTemporaryDir& prefix() {
    static QTemporaryDir dir;
    return dir;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    // A small installation, so that the lookup of names has folders to search.
    QDir root(prefix().path());
    root.mkpath(QStringLiteral("drive_c/Zorel/Variables/Jean"));
    root.mkpath(QStringLiteral("drive_c/Zorel/Lang"));
    root.mkpath(QStringLiteral("dosdevices"));
    QFile::link(QStringLiteral("../drive_c"), root.filePath(QStringLiteral("dosdevices/c:")));
    qputenv("WINEPREFIX", QFile::encodeName(prefix().path()));
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QString path = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const QString mapped = brimo::MapWindowsPathText({prefix().path()}, path);
    const QString slashed = QString(path).replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (path.isEmpty() || slashed.startsWith(QLatin1String("//"))) FUZZ_CHECK(mapped.isEmpty());
    else {
        const bool drive = path.size() >= 2 && path.at(1) == QLatin1Char(':') && path.at(0).unicode() < 128 && path.at(0).isLetter();
        const QString folder = prefix().path() + QStringLiteral("/dosdevices/") + (drive ? path.at(0).toLower() : QChar('c')) + ":/";
        FUZZ_CHECK(mapped.startsWith(folder));
        const QStringList names = mapped.mid(folder.size()).split(QLatin1Char('/'));
        FUZZ_CHECK(!names.contains(QStringLiteral(".")) && !names.contains(QStringLiteral("..")));
    }
    const QString native = brimo::ToNativePath({prefix().path()}, path);
    FUZZ_CHECK(native.compare(mapped, Qt::CaseInsensitive) == 0);
    return 0;
}
