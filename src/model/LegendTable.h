#pragma once
// Model layer (src/model): installation settings, legends, variables and
// Lisp files, without a window; it sees the platform alone.
//
// The legend table: the lines of the language file, looked up by number.

#include "platform/WindowsPaths.h"

#include <QString>
#include <vector>

namespace brimo {

struct LegendEntry {
    QString code; // columns 1 to 4, padded with blanks; read by nothing
    QString text; // columns 6 to 260, padded with blanks to 255
};

// What the window layer provides when a legend file cannot be loaded: the
// question "debug now?" with Yes and No. Yes ends the program at once.
class LegendFailureQuestion {
public:
    virtual ~LegendFailureQuestion() = default;
    // Puts the question; returns true for Yes.
    virtual bool ask(const QString& text, const QString& title) = 0;
    // Ends the process at once; does not return in the real program.
    virtual void endProgram() = 0;
};

class LegendTable {
public:
    LegendTable();

    // Replaces the table with the file folder + "ZorelMsg_" + language + ".txt"
    // (a backslash is added to a folder that does not end in one). Returns
    // the number of entries, or -1 after a failed load, which first puts the
    // question to `question` and leaves one empty entry.
    int LoadLegends(const WinePrefix& prefix, const QString& folder, const QString& language,
                    LegendFailureQuestion& question);

    // The trimmed text of legend n, or the empty text when n is out of range.
    QString GetLegends(int n) const;

    int size() const { return static_cast<int>(entries_.size()); }
    // Entry n as a record: its code and text padded with blanks.
    LegendEntry entry(int n) const;

private:
    void reset();
    std::vector<LegendEntry> entries_; // entry n is at index n - 1, without its padding
};

// The question of a failed load, in French whatever the language.
QString LegendFailureText();
QString LegendFailureTitle();

} // namespace brimo
