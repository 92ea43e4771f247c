// The mapping of Windows path texts into a Wine prefix: drives go under
// dosdevices, backslashes become slashes, native paths pass unchanged,
// shares map to nothing, and the lookup of names changes only their case.

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
    const QString mapped = brimo::MapWindowsPathText(path);
    if (path.startsWith(QLatin1Char('/'))) FUZZ_CHECK(mapped == path);
    else if (path.startsWith(QLatin1String("\\\\"))) FUZZ_CHECK(mapped.isEmpty());
    else {
        FUZZ_CHECK(!mapped.contains(QLatin1Char('\\')));
        if (path.size() >= 2 && path.at(1) == QLatin1Char(':') && path.at(0).isLetter())
            FUZZ_CHECK(mapped.startsWith(prefix().path() + QStringLiteral("/dosdevices/") + path.at(0).toLower() + ':'));
    }
    const QString native = brimo::ToNativePath(path);
    FUZZ_CHECK(native.compare(mapped, Qt::CaseInsensitive) == 0);
    return 0;
}
