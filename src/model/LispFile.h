#pragma once
// Model layer (src/model): installation settings, legends, variables and
// Lisp files, without a window; it sees the platform alone.
//
// Lisp variable files: one (setq ...) form a line, each with a comment,
// written whole, in Windows-1252, every line ending in CR LF.

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace brimo {

enum class LispLineForm { Numeric, Quoted, Path, Fixed, Language };

// Doubles each backslash, for the path lines and nothing else.
QString EscapeBackslashes(const QString& text);

// "(setq " name " " value closing
QString NumericLine(const QString& name, const QString& value, const QString& closing);
// "(setq " name " \"" value "\"" closing; nothing in the value is escaped.
QString QuotedLine(const QString& name, const QString& value, const QString& closing);
// A quoted line whose value went through EscapeBackslashes.
QString PathLine(const QString& name, const QString& value, const QString& closing);

// The line of one of the three forms that carry a value of their own.
QString ValueLine(LispLineForm form, const QString& name, const QString& value, const QString& closing);

// The bytes of a whole file: each line in Windows-1252 followed by CR LF.
QByteArray ComposeLispFile(const QStringList& lines);

} // namespace brimo
