// The mapping of Windows path texts into a Wine prefix: drives go under
// dosdevices, backslashes become slashes, a path always lies under its
// drive's folder with "." and ".." resolved, shares map to nothing, and the
// lookup of names changes only their case.

#include "Fuzz.h"
#include "platform/WindowsPaths.h"

static void fuzzOne(QByteArrayView data) {
    // A small installation, so that the lookup of names has folders to search.
    static const QString prefix = MakeFuzzPrefix({"Zorel/Variables/Jean", "Zorel/Lang"});
    const QString path = QString::fromUtf8(data);
    const QString mapped = brimo::MapWindowsPathText({prefix}, path);
    if (path.isEmpty() || QString(path).replace(QLatin1Char('\\'), QLatin1Char('/')).startsWith(QLatin1String("//"))) {
        FUZZ_CHECK(mapped.isEmpty());
    } else {
        const bool drive = path.size() >= 2 && path.at(1) == QLatin1Char(':') && path.at(0).unicode() < 128 && path.at(0).isLetter();
        const QString folder = prefix + QStringLiteral("/dosdevices/") + (drive ? path.at(0).toLower() : QChar('c')) + ":/";
        FUZZ_CHECK(mapped.startsWith(folder));
        const QStringList names = mapped.mid(folder.size()).split(QLatin1Char('/'));
        FUZZ_CHECK(!names.contains(QStringLiteral(".")) && !names.contains(QStringLiteral("..")));
    }
    FUZZ_CHECK(brimo::ToNativePath({prefix}, path).compare(mapped, Qt::CaseInsensitive) == 0);
}
