#pragma once
// A profile file (zorel.ini, Brimo.ini) held in memory as its bytes, with the
// reading and writing contract of the Win32 profile functions as Wine has them:
//  - a line ends at CR, at LF or at CR LF; blanks are space, tab, VT, FF and
//    the DOS end-of-file byte 0x1A (not the no-break space 0xA0);
//  - a section is a line "[name]": the name lies between the '[' and the last
//    ']' of the line, without the blanks around it;
//  - section and key names match without regard to the case of the letters
//    A-Z (other letters must match exactly), after the blanks around them are
//    dropped; the first matching section, and in it the first matching key,
//    wins; keys before any section are never found;
//  - a NUL byte in a line ends the name or the value it stands in;
//  - a value loses the blanks around it and one pair of surrounding quotes
//    (both " or both '), and is cut by the caller's buffer (255 characters
//    give at most 254);
//  - a write replaces the value of an existing key in its line, or adds the
//    key behind the last line of its section, or adds the section at the end;
//    names and values are written without the blanks around them; every other
//    byte of the file stays as it was; new lines end in CR LF;
//  - a file that starts with the UTF-8 byte-order mark EF BB BF holds UTF-8
//    after it: its first line starts behind the mark, names and values are
//    read as Windows-1252 text decoded from UTF-8 (see utf8ToCp1252) and
//    written in UTF-8, and the mark stays. Any other file is Windows-1252.

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QPair>
#include <vector>

namespace brimo {

class ProfileDocument {
public:
    ProfileDocument() = default;
    explicit ProfileDocument(QByteArray bytes);

    const QByteArray& bytes() const { return bytes_; }

    // GetPrivateProfileStringA with the empty text as default and a buffer of
    // `bufferSize` characters: the value, or the empty text when the section
    // or the key is missing.
    QByteArray getString(QByteArrayView section, QByteArrayView key, int bufferSize = 255) const;

    // The names of the keys of a section (lines with '='), in file order;
    // nothing when the section is missing.
    QList<QByteArray> keyNames(QByteArrayView section) const;

    // WritePrivateProfileStringA for each pair in turn, on the text in memory.
    // Returns true when the text changed.
    using KeyValue = QPair<QByteArray, QByteArray>;
    bool setStrings(QByteArrayView section, const QList<KeyValue>& keyValues);
    bool setString(QByteArrayView section, QByteArrayView key, QByteArrayView value);

private:
    struct Section {
        qsizetype nameBegin = 0, nameEnd = 0; // inside the brackets
        qsizetype bodyBegin = 0;              // first byte after the header line
        qsizetype bodyEnd = 0;                // first byte of the next header line, or the end
        bool headerHasLineEnd = true;
    };
    struct Key {
        qsizetype nameBegin = 0, nameEnd = 0;
        qsizetype valueBegin = -1, valueEnd = -1; // -1: a line without '='
    };

    // The first byte behind the byte-order mark: 0 for a Windows-1252 file.
    qsizetype textBegin() const { return utf8_ ? 3 : 0; }
    // A name or a value of the caller's, in Windows-1252, as the file holds it.
    QByteArray stored(QByteArrayView text) const;
    // The stored bytes from `begin` to `end` as Windows-1252.
    QByteArray cp1252Of(qsizetype begin, qsizetype end) const;

    void indexSections() const;
    const Section* findSection(QByteArrayView name) const;
    std::vector<Key> keysOf(const Section& section) const;

    QByteArray bytes_;
    bool utf8_ = false;
    mutable bool indexed_ = false;
    mutable std::vector<Section> sections_; // named sections, in file order
    mutable qsizetype lastSection_ = -1;
    mutable QByteArray lastSectionName_;
    mutable qsizetype lastKeysOf_ = -1;
    mutable std::vector<Key> lastKeys_;
};

// True for the characters that the profile functions treat as blanks.
bool isProfileBlank(unsigned char c);

// Compares two names without regard to case, after dropping surrounding blanks.
bool profileNamesEqual(QByteArrayView stored, QByteArrayView wanted);

} // namespace brimo
