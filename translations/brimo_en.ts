<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>CommitFailureReport</name>
    <message>
        <source>The window stays open: press OK again in a moment.</source>
        <translation>The window stays open: press OK again in a moment.</translation>
    </message>
    <message>
        <source>The field &quot;%1&quot; holds a double quote (&quot;), which the Lisp file cannot take. Remove it, then press OK again.</source>
        <translation>The field &quot;%1&quot; holds a double quote (&quot;), which the Lisp file cannot take. Remove it, then press OK again.</translation>
    </message>
    <message>
        <source>The file %1 could not be written: %2.</source>
        <translation>The file %1 could not be written: %2.</translation>
    </message>
    <message>
        <source>No file was changed.</source>
        <translation>No file was changed.</translation>
    </message>
</context>
<context>
    <name>Failure</name>
    <message>
        <source>the system refused it</source>
        <translation>the system refused it</translation>
    </message>
    <message>
        <source>no room is left on the disk</source>
        <translation>no room is left on the disk</translation>
    </message>
    <message>
        <source>the disk can only be read</source>
        <translation>the disk can only be read</translation>
    </message>
    <message>
        <source>the file is read-only</source>
        <translation>the file is read-only</translation>
    </message>
    <message>
        <source>you have no right to do this here</source>
        <translation>you have no right to do this here</translation>
    </message>
    <message>
        <source>the file would pass the size limit set for this program</source>
        <translation>the file would pass the size limit set for this program</translation>
    </message>
    <message>
        <source>the file does not exist</source>
        <translation>the file does not exist</translation>
    </message>
    <message>
        <source>the file is too large to be read (at most %1 bytes are read)</source>
        <translation>the file is too large to be read (at most %1 bytes are read)</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>not a regular file</translation>
    </message>
    <message>
        <source>a folder stands where the file should be</source>
        <translation>a folder stands where the file should be</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>the folder %1 does not exist</translation>
    </message>
    <message>
        <source>the path names no folder on this machine</source>
        <translation>the path names no folder on this machine</translation>
    </message>
    <message>
        <source>too many levels of symbolic links</source>
        <translation>too many levels of symbolic links</translation>
    </message>
    <message>
        <source>process %1 (%2) holds the lock</source>
        <translation>process %1 (%2) holds the lock</translation>
    </message>
    <message>
        <source>the lock %1 cannot be used</source>
        <translation>the lock %1 cannot be used</translation>
    </message>
    <message>
        <source>cannot act as the owner of the prefix (user %1)</source>
        <translation>cannot act as the owner of the prefix (user %1)</translation>
    </message>
    <message>
        <source>a file of the commit cannot be read, so it could not be put back</source>
        <translation>a file of the commit cannot be read, so it could not be put back</translation>
    </message>
    <message>
        <source>the files of one commit must share a folder</source>
        <translation>the files of one commit must share a folder</translation>
    </message>
    <message>
        <source>another program holds the lock</source>
        <translation>another program holds the lock</translation>
    </message>
    <message>
        <source>process %1 holds the lock</source>
        <translation>process %1 holds the lock</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>no record of a commit</source>
        <translation>no record of a commit</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no file of the user&apos;s folder</source>
        <translation>&quot;%1&quot; names no file of the user&apos;s folder</translation>
    </message>
    <message>
        <source>no entry %1</source>
        <translation>no entry %1</translation>
    </message>
    <message>
        <source>no entry</source>
        <translation>no entry</translation>
    </message>
    <message>
        <source>entry %1 is damaged (%2)</source>
        <translation>entry %1 is damaged (%2)</translation>
    </message>
</context>
<context>
    <name>KeyMeaning</name>
    <message>
        <source>width of the user-sized frame, mm</source>
        <translation>width of the user-sized frame, mm</translation>
    </message>
    <message>
        <source>length of the user-sized frame, mm</source>
        <translation>length of the user-sized frame, mm</translation>
    </message>
    <message>
        <source>colour number of the double frame</source>
        <translation>colour number of the double frame</translation>
    </message>
    <message>
        <source>offset of the double frame, mm on paper</source>
        <translation>offset of the double frame, mm on paper</translation>
    </message>
    <message>
        <source>layer name of the frame</source>
        <translation>layer name of the frame</translation>
    </message>
    <message>
        <source>default unit in model space: 0 mm, 1 cm, 2 m</source>
        <translation>default unit in model space: 0 mm, 1 cm, 2 m</translation>
    </message>
    <message>
        <source>default unit in paper space: 0 mm, 1 cm, 2 m</source>
        <translation>default unit in paper space: 0 mm, 1 cm, 2 m</translation>
    </message>
    <message>
        <source>slant of the text styles, degrees</source>
        <translation>slant of the text styles, degrees</translation>
    </message>
    <message>
        <source>compression of the text styles</source>
        <translation>compression of the text styles</translation>
    </message>
    <message>
        <source>height of style GC1, mm on paper</source>
        <translation>height of style GC1, mm on paper</translation>
    </message>
    <message>
        <source>height of style GC2</source>
        <translation>height of style GC2</translation>
    </message>
    <message>
        <source>height of style GC3</source>
        <translation>height of style GC3</translation>
    </message>
    <message>
        <source>height of style GC4</source>
        <translation>height of style GC4</translation>
    </message>
    <message>
        <source>height of style GC5</source>
        <translation>height of style GC5</translation>
    </message>
    <message>
        <source>height of style GC7</source>
        <translation>height of style GC7</translation>
    </message>
    <message>
        <source>height of style GC10</source>
        <translation>height of style GC10</translation>
    </message>
    <message>
        <source>height of style GC15</source>
        <translation>height of style GC15</translation>
    </message>
    <message>
        <source>text height of the dimension style GCC</source>
        <translation>text height of the dimension style GCC</translation>
    </message>
    <message>
        <source>colour of the dimension style GCC</source>
        <translation>colour of the dimension style GCC</translation>
    </message>
    <message>
        <source>layer to use after the command: 0 the GC layers, 1 the current layer</source>
        <translation>layer to use after the command: 0 the GC layers, 1 the current layer</translation>
    </message>
    <message>
        <source>name of the office</source>
        <translation>name of the office</translation>
    </message>
    <message>
        <source>address of the office</source>
        <translation>address of the office</translation>
    </message>
    <message>
        <source>postal code of the office</source>
        <translation>postal code of the office</translation>
    </message>
    <message>
        <source>town of the office</source>
        <translation>town of the office</translation>
    </message>
    <message>
        <source>telephone number of the office</source>
        <translation>telephone number of the office</translation>
    </message>
    <message>
        <source>fax number of the office</source>
        <translation>fax number of the office</translation>
    </message>
    <message>
        <source>font of style GC1</source>
        <translation>font of style GC1</translation>
    </message>
    <message>
        <source>font of style GC2</source>
        <translation>font of style GC2</translation>
    </message>
    <message>
        <source>font of style GC3</source>
        <translation>font of style GC3</translation>
    </message>
    <message>
        <source>font of style GC4</source>
        <translation>font of style GC4</translation>
    </message>
    <message>
        <source>font of style GC5</source>
        <translation>font of style GC5</translation>
    </message>
    <message>
        <source>font of style GC7</source>
        <translation>font of style GC7</translation>
    </message>
    <message>
        <source>font of style GC10</source>
        <translation>font of style GC10</translation>
    </message>
    <message>
        <source>font of style GC15</source>
        <translation>font of style GC15</translation>
    </message>
    <message>
        <source>font of the dimension style</source>
        <translation>font of the dimension style</translation>
    </message>
    <message>
        <source>AutoCAD command after a style is chosen: 0 none, 1 one-line text, 2 dynamic text, 3 paragraph text</source>
        <translation>AutoCAD command after a style is chosen: 0 none, 1 one-line text, 2 dynamic text, 3 paragraph text</translation>
    </message>
    <message>
        <source>language of the add-on: FRA, ENG, DEU, ITA</source>
        <translation>language of the add-on: FRA, ENG, DEU, ITA</translation>
    </message>
    <message>
        <source>show the add-on&apos;s logo while modules load</source>
        <translation>show the add-on&apos;s logo while modules load</translation>
    </message>
    <message>
        <source>show the user profile of the drawing</source>
        <translation>show the user profile of the drawing</translation>
    </message>
    <message>
        <source>default colour of Zmult 1:10</source>
        <translation>default colour of Zmult 1:10</translation>
    </message>
    <message>
        <source>default colour of Zmult 1:20</source>
        <translation>default colour of Zmult 1:20</translation>
    </message>
    <message>
        <source>default colour of Zmult 1:50</source>
        <translation>default colour of Zmult 1:50</translation>
    </message>
    <message>
        <source>default colour of Zmult 1:100</source>
        <translation>default colour of Zmult 1:100</translation>
    </message>
    <message>
        <source>default colour of Zmult 1:200</source>
        <translation>default colour of Zmult 1:200</translation>
    </message>
    <message>
        <source>default colour of Zmult 1:500</source>
        <translation>default colour of Zmult 1:500</translation>
    </message>
    <message>
        <source>path of the Windows explorer</source>
        <translation>path of the Windows explorer</translation>
    </message>
    <message>
        <source>path of the calculator</source>
        <translation>path of the calculator</translation>
    </message>
    <message>
        <source>path of the WordPad editor</source>
        <translation>path of the WordPad editor</translation>
    </message>
    <message>
        <source>path of the notepad</source>
        <translation>path of the notepad</translation>
    </message>
    <message>
        <source>path of Acrobat Reader</source>
        <translation>path of Acrobat Reader</translation>
    </message>
    <message>
        <source>path of a personal program</source>
        <translation>path of a personal program</translation>
    </message>
    <message>
        <source>drawing of the result: polyligne (a polyline) or points</source>
        <translation>drawing of the result: polyligne (a polyline) or points</translation>
    </message>
    <message>
        <source>drawing of the slope: 2 (2D) or 3 (3D)</source>
        <translation>drawing of the slope: 2 (2D) or 3 (3D)</translation>
    </message>
    <message>
        <source>horizontal distance of the slope</source>
        <translation>horizontal distance of the slope</translation>
    </message>
    <message>
        <source>vertical distance of the slope</source>
        <translation>vertical distance of the slope</translation>
    </message>
    <message>
        <source>initial search length, m</source>
        <translation>initial search length, m</translation>
    </message>
    <message>
        <source>number of searches over 360 degrees</source>
        <translation>number of searches over 360 degrees</translation>
    </message>
    <message>
        <source>spacing between the searches</source>
        <translation>spacing between the searches</translation>
    </message>
    <message>
        <source>scale factor of the direction arrows</source>
        <translation>scale factor of the direction arrows</translation>
    </message>
</context>
<context>
    <name>OfficeStandard</name>
    <message>
        <source>The office standard (%1) fixes this value.</source>
        <translation>The office standard (%1) fixes this value.</translation>
    </message>
    <message>
        <source>%1 is no key of Brimo&apos;s settings</source>
        <translation>%1 is no key of Brimo&apos;s settings</translation>
    </message>
    <message>
        <source>%1=%2: a locked key takes 1, an unlocked one 0</source>
        <translation>%1=%2: a locked key takes 1, an unlocked one 0</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, line %2</translation>
    </message>
    <message>
        <source>%1: %2; the office standard is ignored</source>
        <translation>%1: %2; the office standard is ignored</translation>
    </message>
</context>
<context>
    <name>SettingValue</name>
    <message>
        <source>%1: the value holds a line break or another control character</source>
        <translation>%1: the value holds a line break or another control character</translation>
    </message>
    <message>
        <source>%1: %2 is none of %3</source>
        <translation>%1: %2 is none of %3</translation>
    </message>
    <message>
        <source>%1: %2 is no number</source>
        <translation>%1: %2 is no number</translation>
    </message>
    <message>
        <source>%1: %2 holds a double quote, which would end its Lisp string</source>
        <translation>%1: %2 holds a double quote, which would end its Lisp string</translation>
    </message>
</context>
<context>
    <name>SettingsText</name>
    <message>
        <source>write what each dialog&apos;s OK would write for the user
(both sections) to a profile file; FILE &quot;-&quot; is the
standard output</source>
        <translation>write what each dialog&apos;s OK would write for the user
(both sections) to a profile file; FILE &quot;-&quot; is the
standard output</translation>
    </message>
    <message>
        <source>set the keys of [Brimo_Gene] and [Brimo_Talus] of a
profile file; FILE &quot;-&quot; is the standard input</source>
        <translation>set the keys of [Brimo_Gene] and [Brimo_Talus] of a
profile file; FILE &quot;-&quot; is the standard input</translation>
    </message>
    <message>
        <source>this text, or the usage of one command</source>
        <translation>this text, or the usage of one command</translation>
    </message>
    <message>
        <source>the version</source>
        <translation>the version</translation>
    </message>
    <message>
        <source>Usage: brimo-settings COMMAND [OPTION...] [ARGUMENT...]

Reads and writes the settings of the Zorel add-on&apos;s variable editor (Brimo)
as its dialogs do: the values of section Brimo_Gene (general dialog) or
Brimo_Talus (slope dialog) of the user&apos;s Brimo.ini, and the Lisp files.
</source>
        <translation>Usage: brimo-settings COMMAND [OPTION...] [ARGUMENT...]

Reads and writes the settings of the Zorel add-on&apos;s variable editor (Brimo)
as its dialogs do: the values of section Brimo_Gene (general dialog) or
Brimo_Talus (slope dialog) of the user&apos;s Brimo.ini, and the Lisp files.
</translation>
    </message>
    <message>
        <source>Exit status:
  0  done, whether or not anything changed
  2  refused: a bad option, unknown key, value that is no number, value out
     of its choices, double quote or control character in a text; nothing
     was written
  3  some prefix failed (reported); the other prefixes went on
With --detailed-exitcodes (Puppet&apos;s convention):
  0  done, nothing changed (with --check: nothing would change)
  1  refused, nothing tried
  2  done, some files changed (with --check: would change)
  4  some prefix failed, nothing changed elsewhere
  6  some prefix failed, and some other changed

See brimo-settings(1).
</source>
        <translation>Exit status:
  0  done, whether or not anything changed
  2  refused: a bad option, unknown key, value that is no number, value out
     of its choices, double quote or control character in a text; nothing
     was written
  3  some prefix failed (reported); the other prefixes went on
With --detailed-exitcodes (Puppet&apos;s convention):
  0  done, nothing changed (with --check: nothing would change)
  1  refused, nothing tried
  2  done, some files changed (with --check: would change)
  4  some prefix failed, nothing changed elsewhere
  6  some prefix failed, and some other changed

See brimo-settings(1).
</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Commands:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Options:</translation>
    </message>
    <message>
        <source>Options take their value as &quot;--opt value&quot; or &quot;--opt=value&quot;; &quot;--&quot; ends them.</source>
        <translation>Options take their value as &quot;--opt value&quot; or &quot;--opt=value&quot;; &quot;--&quot; ends them.</translation>
    </message>
    <message>
        <source>%1: no such command</source>
        <translation>%1: no such command</translation>
    </message>
    <message>
        <source>Usage: brimo-settings %1 [OPTION...]</source>
        <translation>Usage: brimo-settings %1 [OPTION...]</translation>
    </message>
    <message>
        <source>%1: not KEY=VALUE</source>
        <translation>%1: not KEY=VALUE</translation>
    </message>
    <message>
        <source>%1: no key of the %2 settings</source>
        <translation>%1: no key of the %2 settings</translation>
    </message>
    <message>
        <source>%1: characters that Windows-1252 lacks are written as ?, as the dialog writes them: %2</source>
        <translation>%1: characters that Windows-1252 lacks are written as ?, as the dialog writes them: %2</translation>
    </message>
    <message>
        <source>--prefixes-from %1: cannot be read</source>
        <translation>--prefixes-from %1: cannot be read</translation>
    </message>
    <message>
        <source>the dialog whose keys get and set use (general)</source>
        <translation>the dialog whose keys get and set use (general)</translation>
    </message>
    <message>
        <source>exit statuses as Puppet&apos;s option of that name</source>
        <translation>exit statuses as Puppet&apos;s option of that name</translation>
    </message>
    <message>
        <source>a Wine prefix in place of $WINEPREFIX (repeatable)</source>
        <translation>a Wine prefix in place of $WINEPREFIX (repeatable)</translation>
    </message>
    <message>
        <source>prefixes from FILE, one a line (&apos;#&apos; starts a comment)</source>
        <translation>prefixes from FILE, one a line (&apos;#&apos; starts a comment)</translation>
    </message>
    <message>
        <source>the user in place of [Users] actuel of zorel.ini</source>
        <translation>the user in place of [Users] actuel of zorel.ini</translation>
    </message>
    <message>
        <source>this text</source>
        <translation>this text</translation>
    </message>
    <message>
        <source>this text and every option as Qt lists them</source>
        <translation>this text and every option as Qt lists them</translation>
    </message>
    <message>
        <source>The settings of Brimo&apos;s dialogs from the command line.</source>
        <translation>The settings of Brimo&apos;s dialogs from the command line.</translation>
    </message>
    <message>
        <source>KEY, KEY=VALUE, FILE, N or COMMAND</source>
        <translation>KEY, KEY=VALUE, FILE, N or COMMAND</translation>
    </message>
    <message>
        <source>--dialog %1: general or slope</source>
        <translation>--dialog %1: general or slope</translation>
    </message>
    <message>
        <source>no such folder</source>
        <translation>no such folder</translation>
    </message>
    <message>
        <source>%1: %2; give the key a value</source>
        <translation>%1: %2; give the key a value</translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation> and %1 more</translation>
    </message>
    <message>
        <source>export takes one FILE, and at most one --prefix</source>
        <translation>export takes one FILE, and at most one --prefix</translation>
    </message>
    <message>
        <source>%1: %2: the stored text of %3 characters is cut to 254, as the dialog reads it</source>
        <translation>%1: %2: the stored text of %3 characters is cut to 254, as the dialog reads it</translation>
    </message>
    <message>
        <source>%1: the stored text holds a double quote, which would end its Lisp string; give the key a value</source>
        <translation>%1: the stored text holds a double quote, which would end its Lisp string; give the key a value</translation>
    </message>
    <message>
        <source>apply takes one FILE</source>
        <translation>apply takes one FILE</translation>
    </message>
    <message>
        <source>%1: cannot be read</source>
        <translation>%1: cannot be read</translation>
    </message>
    <message>
        <source>%1: no key of [Brimo_Gene] or [Brimo_Talus]</source>
        <translation>%1: no key of [Brimo_Gene] or [Brimo_Talus]</translation>
    </message>
    <message>
        <source>%1: already so</source>
        <translation>%1: already so</translation>
    </message>
    <message>
        <source>%1: would change</source>
        <translation>%1: would change</translation>
    </message>
    <message>
        <source>%1: changed</source>
        <translation>%1: changed</translation>
    </message>
    <message>
        <source>file %1</source>
        <translation>file %1</translation>
    </message>
    <message>
        <source>would change %1, already so %2, failed %3</source>
        <translation>would change %1, already so %2, failed %3</translation>
    </message>
    <message>
        <source>changed %1, already so %2, failed %3</source>
        <translation>changed %1, already so %2, failed %3</translation>
    </message>
    <message>
        <source>%1: no entry number</source>
        <translation>%1: no entry number</translation>
    </message>
    <message>
        <source>set every key that the office standard gives or locks
to its value; with --check, report which users differ
from it, and in which keys</source>
        <translation>set every key that the office standard gives or locks
to its value; with --check, report which users differ
from it, and in which keys</translation>
    </message>
    <message>
        <source>get: put &quot;stored&quot;, &quot;office&quot;, &quot;locked&quot; or &quot;default&quot;
and a tab in front</source>
        <translation>get: put &quot;stored&quot;, &quot;office&quot;, &quot;locked&quot; or &quot;default&quot;
and a tab in front</translation>
    </message>
    <message>
        <source>set, apply, restore, heal: report what would
change, write nothing</source>
        <translation>set, apply, restore, heal: report what would
change, write nothing</translation>
    </message>
    <message>
        <source>%1: the office standard %2 locks it at &quot;%3&quot;</source>
        <translation>%1: the office standard %2 locks it at &quot;%3&quot;</translation>
    </message>
    <message>
        <source>heal takes no argument</source>
        <translation>heal takes no argument</translation>
    </message>
    <message>
        <source>%1: no office standard to heal to</source>
        <translation>%1: no office standard to heal to</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; holds &quot;%3&quot;, which this locale&apos;s numbers do not take for their decimal symbol (&quot;%4&quot;); the add-on receives %2 as written</source>
        <translation>%1: &quot;%2&quot; holds &quot;%3&quot;, which this locale&apos;s numbers do not take for their decimal symbol (&quot;%4&quot;); the add-on receives %2 as written</translation>
    </message>
    <message>
        <source>get: print the bare value of one key</source>
        <translation>get: print the bare value of one key</translation>
    </message>
    <message>
        <source>no command</source>
        <translation>no command</translation>
    </message>
    <message>
        <source>get --value takes one KEY</source>
        <translation>get --value takes one KEY</translation>
    </message>
    <message>
        <source>keys written out as the dialog shows them, none being stored: %1</source>
        <translation>keys written out as the dialog shows them, none being stored: %1</translation>
    </message>
    <message>
        <source>list the last 20 commits of the user&apos;s files (by the
dialogs&apos; OK, set, apply, restore, heal): number,
time, program, what, keys changed, who, run; show N:
that entry with each key&apos;s old and new value</source>
        <translation>list the last 20 commits of the user&apos;s files (by the
dialogs&apos; OK, set, apply, restore, heal): number,
time, program, what, keys changed, who, run; show N:
that entry with each key&apos;s old and new value</translation>
    </message>
    <message>
        <source>restore: every prefix back to before that run of
the tool (its id in the history)</source>
        <translation>restore: every prefix back to before that run of
the tool (its id in the history)</translation>
    </message>
    <message>
        <source>history takes no argument, or show N</source>
        <translation>history takes no argument, or show N</translation>
    </message>
    <message>
        <source>%1: commit %2 (%3) came after run %4; restore it first</source>
        <translation>%1: commit %2 (%3) came after run %4; restore it first</translation>
    </message>
    <message>
        <source>restore takes at most one entry number, or --run ID</source>
        <translation>restore takes at most one entry number, or --run ID</translation>
    </message>
    <message>
        <source>list every key of both dialogs: dialog, key, Lisp
name, type, default, choices, office value, meaning</source>
        <translation>list every key of both dialogs: dialog, key, Lisp
name, type, default, choices, office value, meaning</translation>
    </message>
    <message>
        <source>keys takes no argument</source>
        <translation>keys takes no argument</translation>
    </message>
    <message>
        <source>print each stored value, else the office&apos;s or the
default (all keys when none is given), as KEY=VALUE
lines</source>
        <translation>print each stored value, else the office&apos;s or the
default (all keys when none is given), as KEY=VALUE
lines</translation>
    </message>
    <message>
        <source>check each value as its field does, then write both
files as the dialog&apos;s OK does; keys not given keep
their stored values</source>
        <translation>check each value as its field does, then write both
files as the dialog&apos;s OK does; keys not given keep
their stored values</translation>
    </message>
    <message>
        <source>bring back both files as they were before the last
commit, before commit N of the history, or with
--run ID before that run; recorded in the history</source>
        <translation>bring back both files as they were before the last
commit, before commit N of the history, or with
--run ID before that run; recorded in the history</translation>
    </message>
    <message>
        <source>get, keys, history, set, apply, restore, heal: print
one JSON document (set, apply, restore, heal: per
prefix the user, changed, keys with old and new
values, files, error)</source>
        <translation>get, keys, history, set, apply, restore, heal: print
one JSON document (set, apply, restore, heal: per
prefix the user, changed, keys with old and new
values, files, error)</translation>
    </message>
</context>
<context>
    <name>StartProblems</name>
    <message>
        <source>The file %1 cannot be read: %2. The dialog shows the default values, and OK will fail until the file is put right.</source>
        <translation>The file %1 cannot be read: %2. The dialog shows the default values, and OK will fail until the file is put right.</translation>
    </message>
    <message>
        <source>Another program kept the file %1 locked through the whole wait: %2. The dialog shows the file as it stands, and OK will fail while that program keeps it.</source>
        <translation>Another program kept the file %1 locked through the whole wait: %2. The dialog shows the file as it stands, and OK will fail while that program keeps it.</translation>
    </message>
    <message>
        <source>The lock of the file %1 cannot be had: %2. OK will fail: nothing can be saved.</source>
        <translation>The lock of the file %1 cannot be had: %2. OK will fail: nothing can be saved.</translation>
    </message>
    <message>
        <source>A save into the folder of %1 was cut off, and its journal was damaged: the journal was removed and the files were left as they stand. Check the values before you press OK.</source>
        <translation>A save into the folder of %1 was cut off, and its journal was damaged: the journal was removed and the files were left as they stand. Check the values before you press OK.</translation>
    </message>
    <message>
        <source>%1 The dialog shows your own values and the program&apos;s defaults.</source>
        <translation>%1 The dialog shows your own values and the program&apos;s defaults.</translation>
    </message>
</context>
</TS>
