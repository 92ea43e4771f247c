// The profile functions of the program against GetPrivateProfileStringA and
// WritePrivateProfileStringA as Wine runs them, on one corpus of files.
//
// Reads must agree exactly: the count and the bytes of every answer.
//
// Writes agree in what the file says, not in its bytes. Wine rewrites the
// whole file in its own form: blank lines go, every line becomes
// "key=value" or "[section]" without the blanks around its parts, and every
// line ends in CR LF. The program changes only the line of the written key,
// or adds a line, and keeps every other byte of the file as it was, so that a
// user's comments, spacing and blank lines survive a commit. The files after
// the writes are therefore compared by their content as Wine reads it (the
// sequence of sections with their keys and values), and by reading every key
// back through both implementations; their bytes are compared only where the
// file was already in Wine's form before the writes.
//
// Known differences, left out of the corpus on purpose:
//  - A file that starts with a UTF-8 or UTF-16 byte-order mark is read by
//    Wine in that encoding; the program's files are Windows-1252 throughout
//    and such a file is read as Windows-1252 bytes.
//  - An empty section or key name: the program never passes one.

#include "WineOracle.h"

#include "platform/Cp1252.h"
#include "platform/ProfileFile.h"
#include "platform/WindowsPaths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <string_view>

namespace brimo::winetest {
namespace {

using namespace std::string_view_literals;

QByteArray b(std::string_view bytes) { return QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size())); }

// What Wine takes for blanks around names and values, and the line ends.
bool isBlank(unsigned char c) { return c == ' ' || (c >= 0x09 && c <= 0x0D) || c == 0x1A; }

QByteArray trim(QByteArray s) {
    qsizetype from = 0, to = s.size();
    while (from < to && isBlank(static_cast<unsigned char>(s[from]))) ++from;
    while (to > from && isBlank(static_cast<unsigned char>(s[to - 1]))) --to;
    return s.sliced(from, to - from);
}

QByteArray untilNul(const QByteArray& s) {
    const qsizetype nul = s.indexOf('\0');
    return nul < 0 ? s : s.first(nul);
}

// The content of a file as Wine reads it: "[name]" for a section, "key=value"
// or "key" (a line without '=') for the others, in file order.
QList<QByteArray> contentOf(const QByteArray& bytes) {
    QList<QByteArray> out;
    bool lastNameless = false;
    qsizetype pos = 0;
    while (pos < bytes.size()) {
        qsizetype end = pos;
        while (end < bytes.size() && bytes[end] != '\r' && bytes[end] != '\n') ++end;
        const QByteArray line = trim(bytes.sliced(pos, end - pos));
        while (end < bytes.size() && (bytes[end] == '\r' || bytes[end] == '\n')) ++end;
        pos = end;
        if (line.isEmpty()) continue;
        const qsizetype close = line.lastIndexOf(']');
        if (line.startsWith('[') && close > 0) {
            out.append('[' + untilNul(line.sliced(1, close - 1)) + ']');
            lastNameless = false;
            continue;
        }
        const qsizetype eq = line.indexOf('=');
        const QByteArray name = untilNul(eq < 0 ? line : trim(line.first(eq)));
        // Wine keeps one of several nameless lines in a row.
        if (name.isEmpty() && lastNameless) continue;
        lastNameless = name.isEmpty();
        out.append(eq < 0 ? name : name + '=' + untilNul(trim(line.sliced(eq + 1))));
    }
    return out;
}

// Section and key names of a file's content, for reading every key back.
void namesOf(const QList<QByteArray>& content, std::set<QByteArray>& sections, std::set<QByteArray>& keys) {
    for (const QByteArray& entry : content) {
        if (entry.startsWith('[')) {
            sections.insert(entry.sliced(1, entry.size() - 2));
        } else {
            const qsizetype eq = entry.indexOf('=');
            keys.insert(eq < 0 ? entry : entry.first(eq));
        }
    }
}

// A name in other spellings: other case, surrounded by blanks of either kind.
QList<QByteArray> spellings(const QByteArray& name) {
    QList<QByteArray> out{name};
    if (trim(name) != name) out.append(trim(name));
    const QString text = fromCp1252(name);
    for (const QString& other : {text.toUpper(), text.toLower()}) {
        const QByteArray bytes = toCp1252(other);
        if (other.size() == text.size() && bytes.count('?') == name.count('?') && !out.contains(bytes)) out.append(bytes);
    }
    out.append(" " + name + "\t");
    out.append("\xA0" + name);
    return out;
}

QByteArray shown(const QByteArray& bytes) {
    QByteArray e = encodeField(bytes);
    return e.size() > 80 ? e.first(80) + "...(" + QByteArray::number(bytes.size()) + " bytes)" : e;
}

struct Read {
    QByteArray file, section, key;
};

struct Put {
    QByteArray section, key, value;
};

struct WriteCase {
    QByteArray file;
    std::optional<QByteArray> before; // nothing: the file does not exist
    bool canonical;                   // already in Wine's form before the writes
    QList<Put> puts;
};

// The files of profiles/ (spacing, quotes, duplicate names, comments, keys
// before any section, CR, LF and mixed line ends, long names and values,
// Windows-1252 letters, control bytes and NULs, empty and blank files,
// random bytes), and one file that does not exist.
QList<std::pair<QByteArray, std::optional<QByteArray>>> readCorpus() {
    QList<std::pair<QByteArray, std::optional<QByteArray>>> corpus{{"missing.ini", std::nullopt}};
    const QDir folder(QStringLiteral(BRIMO_WINE_PROFILES));
    for (const QFileInfo& file : folder.entryInfoList(QDir::Files, QDir::Name)) {
        QFile f(file.filePath());
        EXPECT_TRUE(f.open(QIODevice::ReadOnly)) << file.filePath().toStdString();
        corpus.append({file.fileName().toLatin1(), f.readAll()});
    }
    EXPECT_GE(corpus.size(), 16);
    return corpus;
}

QList<WriteCase> writeCorpus() {
    const QByteArray canonical = "[S]\r\nk=1\r\nj=2\r\n[T]\r\nk=3\r\n";
    const QByteArray loose =
        "; settings\r\n\r\n  [S]  \r\n  k  =  1  \r\n\r\n;note\r\nj=2\r\n\r\n\r\n[T]\r\n\tk\t=\t3\t\r\n\r\n";
    const QByteArray v300 = QByteArray("0123456789").repeated(30);
    return {
        {"replace.ini", canonical, true, {{"S", "k", "new"}}},
        {"addkey.ini", canonical, true, {{"S", "n", "v"}}},
        {"addsection.ini", canonical, true, {{"U", "k", "v"}}},
        {"create.ini", std::nullopt, true, {{"S", "k", "v"}, {"S", "j", "w"}, {"T", "k", "x"}}},
        {"same.ini", canonical, true, {{"S", "k", "1"}}},
        {"sameloose.ini", loose, false, {{"s", "K", "1"}, {"T", "k", "3"}}},
        {"loose.ini", loose, false, {{"S", "k", "one"}, {"S", "n", "new"}, {"T", "t", "x"}, {"U", "u", "y"}}},
        {"noend.ini", b("[S]\r\nk=1"sv), false, {{"S", "j", "2"}}},
        {"headeronly.ini", b("[S]"sv), false, {{"S", "k", "v"}}},
        {"cr.ini", b("[S]\rk=1\r[T]\rk=3\r"sv), false, {{"S", "k", "2"}, {"S", "n", "v"}, {"U", "u", "w"}}},
        {"lf.ini", b("[S]\nk=1\n\n[T]\nk=3\n"sv), false, {{"S", "n", "v"}, {"T", "k", "4"}}},
        {"duplicates.ini", b("[A]\r\nk=1\r\n[a]\r\nk=2\r\nonlysecond=5\r\n"sv), false,
         {{"A", "k", "x"}, {"a", "onlysecond", "y"}}},
        {"case.ini", canonical, true, {{"s", "K", "up"}, {"s", "NewKey", "v"}, {"u", "k", "v"}}},
        {"values.ini", canonical, true,
         {{"S", "lead", "  v"}, {"S", "trail", "v  "}, {"S", "quoted", "\"q\""}, {"S", "nb", "\xA0v"},
          {"S", "high", "\xE9\xC9\x8A\x9A"}, {"S", "empty", ""}, {"S", "long", v300}, {"S", "eq", "a=b"}}},
        {"names.ini", canonical, true, {{" S ", "k", "blank section"}, {" V ", " w ", "new"}, {"S", " j\t", "4"}}},
        {"noequals.ini", b("[S]\r\nflag\r\nk=1\r\n"sv), false, {{"S", "flag", "on"}}},
        {"before.ini", b("k=0\r\n[S]\r\nk=1\r\n"sv), false, {{"S", "k", "2"}, {"T", "k", "3"}}},
        {"trailingblank.ini", b("[S]\r\nk=1\r\n\r\n\r\n[T]\r\nk=2\r\n\r\n"sv), false, {{"S", "n", "v"}, {"T", "n", "w"}}},
        {"comment.ini", b("[S]\r\nk=1\r\n;note\r\n[T]\r\n"sv), false, {{"S", "n", "v"}, {"T", "n", "w"}}},
        {"nofolder/x.ini", std::nullopt, true, {{"S", "k", "v"}}},
    };
}

class WineProfile : public ::testing::Test {
protected:
    QTemporaryDir scratch;
    QString wineDir() const { return scratch.path() + "/wine"; }
    QString ourDir() const { return scratch.path() + "/ours"; }

    void SetUp() override {
        ASSERT_TRUE(scratch.isValid());
        QDir().mkpath(wineDir());
        QDir().mkpath(ourDir());
        // Our side reaches its files through drive Z:, as Wine does: a link to "/".
        QDir().mkpath(scratch.path() + "/prefix/dosdevices");
        QFile::link("/", scratch.path() + "/prefix/dosdevices/z:");
    }
    WinePrefix ourPrefix() const { return {scratch.path() + "/prefix"}; }
    static QString onZ(const QString& path) { return QString::fromLocal8Bit(WineSession::windowsPath(path)); }

    static void put(const QString& path, const QByteArray& bytes) {
        QFile f(path);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(bytes);
    }
    static QByteArray contents(const QString& path) {
        QFile f(path);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }

    QList<QByteArray> runWine(const QByteArray& script) {
        QString error;
        const QList<QByteArray> out = WineSession::instance().run(profileOracle(), script, "en_US.UTF-8", &error);
        EXPECT_TRUE(error.isEmpty()) << error.toStdString();
        return out;
    }

    static QByteArray readLine(const QByteArray& file, const Read& r) {
        return "G " + encodeField(file) + ' ' + encodeField(r.section) + ' ' + encodeField(r.key) + '\n';
    }
    QByteArray ourRead(const QString& path, const Read& r) const {
        QString buffer;
        const int n = GetPrivateProfileString(ourPrefix(), fromCp1252(r.section), fromCp1252(r.key), buffer, 255, onZ(path));
        return QByteArray::number(n) + ' ' + encodeField(toCp1252(buffer));
    }

    // Runs the reads through Wine on `wineFiles` and through the program on
    // `ourFiles`; the differences, one line each.
    QList<QByteArray> compareReads(const QList<Read>& reads, const std::map<QByteArray, QString>& wineFiles,
                                   const std::map<QByteArray, QString>& ourFiles) {
        QByteArray script;
        for (const Read& r : reads) script += readLine(WineSession::windowsPath(wineFiles.at(r.file)), r);
        const QList<QByteArray> wine = runWine(script);
        QList<QByteArray> differences;
        if (wine.size() != reads.size()) {
            differences.append("Wine gave " + QByteArray::number(wine.size()) + " answers to " +
                               QByteArray::number(reads.size()) + " reads");
            return differences;
        }
        for (qsizetype i = 0; i < reads.size(); ++i) {
            const QByteArray ours = ourRead(ourFiles.at(reads[i].file), reads[i]);
            if (ours != wine[i])
                differences.append(reads[i].file + " [" + shown(reads[i].section) + "] " + shown(reads[i].key) +
                                   ": Wine " + shown(wine[i]) + ", ours " + shown(ours));
        }
        return differences;
    }
};

std::string report(const QList<QByteArray>& lines) {
    std::string out;
    for (qsizetype i = 0; i < lines.size() && i < 60; ++i) out += lines[i].toStdString() + "\n";
    if (lines.size() > 60) out += "... " + std::to_string(lines.size() - 60) + " more\n";
    return out;
}

TEST_F(WineProfile, ReadsAgreeOnEveryFileOfTheCorpus) {
    std::map<QByteArray, QString> wineFiles, ourFiles;
    QList<Read> reads;
    for (const auto& [name, bytes] : readCorpus()) {
        wineFiles[name] = wineDir() + '/' + name;
        ourFiles[name] = ourDir() + '/' + name;
        if (bytes) {
            put(wineFiles[name], *bytes);
            put(ourFiles[name], *bytes);
        }
        std::set<QByteArray> sections{"S", "Nope"}, keys{"k", "nope"};
        namesOf(contentOf(bytes.value_or(QByteArray())), sections, keys);
        int sectionCount = 0;
        for (const QByteArray& section : sections) {
            if (untilNul(section).isEmpty() || ++sectionCount > 40) continue;
            int keyCount = 0;
            for (const QByteArray& key : keys) {
                if (untilNul(key).isEmpty() || ++keyCount > 60) continue;
                for (const QByteArray& s : spellings(untilNul(section)))
                    for (const QByteArray& k : spellings(untilNul(key))) reads.append({name, s, k});
            }
        }
    }
    const QList<QByteArray> differences = compareReads(reads, wineFiles, ourFiles);
    std::printf("%lld reads compared\n", static_cast<long long>(reads.size()));
    EXPECT_TRUE(differences.isEmpty()) << differences.size() << " reads differ:\n" << report(differences);
}

TEST_F(WineProfile, WritesLeaveTheSameContent) {
    const QList<WriteCase> cases = writeCorpus();
    std::map<QByteArray, QString> wineFiles, ourFiles;
    QByteArray script;
    for (const WriteCase& c : cases) {
        wineFiles[c.file] = wineDir() + '/' + c.file;
        ourFiles[c.file] = ourDir() + '/' + c.file;
        if (c.before) {
            put(wineFiles[c.file], *c.before);
            put(ourFiles[c.file], *c.before);
        }
        for (const Put& p : c.puts)
            script += "P " + encodeField(WineSession::windowsPath(wineFiles[c.file])) + ' ' + encodeField(p.section) +
                      ' ' + encodeField(p.key) + ' ' + encodeField(p.value) + '\n';
    }
    const QList<QByteArray> wine = runWine(script);

    QList<QByteArray> differences;
    QList<Read> readBacks;
    qsizetype answer = 0;
    for (const WriteCase& c : cases) {
        for (const Put& p : c.puts) {
            const bool ours = WritePrivateProfileString(ourPrefix(), fromCp1252(p.section), fromCp1252(p.key), fromCp1252(p.value),
                                                        onZ(ourFiles[c.file]));
            const QByteArray theirs = answer < wine.size() ? wine[answer] : "none";
            ++answer;
            if (theirs != (ours ? "1" : "0"))
                differences.append(c.file + ": write of " + shown(p.key) + " gave " + theirs + " under Wine, " +
                                   (ours ? "1" : "0") + " here");
        }
        const QByteArray wineAfter = contents(wineFiles[c.file]);
        const QByteArray ourAfter = contents(ourFiles[c.file]);
        if (QFileInfo::exists(wineFiles[c.file]) != QFileInfo::exists(ourFiles[c.file]))
            differences.append(c.file + ": the file exists on one side only");
        if (contentOf(wineAfter) != contentOf(ourAfter))
            differences.append(c.file + ": content differs:\n  Wine " + contentOf(wineAfter).join(" | ") +
                               "\n  ours " + contentOf(ourAfter).join(" | "));
        if (c.canonical && wineAfter != ourAfter)
            differences.append(c.file + ": bytes differ: Wine " + shown(wineAfter) + ", ours " + shown(ourAfter));
        std::set<QByteArray> sections, keys;
        namesOf(contentOf(wineAfter), sections, keys);
        namesOf(contentOf(ourAfter), sections, keys);
        for (const QByteArray& s : sections)
            for (const QByteArray& k : keys)
                if (!s.isEmpty() && !k.isEmpty()) readBacks.append({c.file, s, k});
    }
    EXPECT_EQ(answer, wine.size());
    differences += compareReads(readBacks, wineFiles, ourFiles);
    std::printf("%lld writes and %lld reads back compared\n", static_cast<long long>(answer),
                static_cast<long long>(readBacks.size()));
    EXPECT_TRUE(differences.isEmpty()) << differences.size() << " differences:\n" << report(differences);
}

} // namespace
} // namespace brimo::winetest
