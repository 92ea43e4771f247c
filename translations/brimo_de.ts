<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>CommitFailureReport</name>
    <message>
        <source>The window stays open: press OK again in a moment.</source>
        <translation>Das Fenster bleibt offen: Drücken Sie gleich noch einmal auf OK.</translation>
    </message>
    <message>
        <source>The field &quot;%1&quot; holds a double quote (&quot;), which the Lisp file cannot take. Remove it, then press OK again.</source>
        <translation>Das Feld „%1“ enthält ein Anführungszeichen (&quot;), das die Lisp-Datei nicht aufnehmen kann. Entfernen Sie es und drücken Sie dann erneut auf OK.</translation>
    </message>
    <message>
        <source>The file %1 could not be written: %2.</source>
        <translation>Die Datei %1 konnte nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>No file was changed.</source>
        <translation>Keine Datei wurde geändert.</translation>
    </message>
</context>
<context>
    <name>Failure</name>
    <message>
        <source>the system refused it</source>
        <translation>das System hat es abgelehnt</translation>
    </message>
    <message>
        <source>no room is left on the disk</source>
        <translation>auf dem Datenträger ist kein Platz mehr frei</translation>
    </message>
    <message>
        <source>the disk can only be read</source>
        <translation>der Datenträger ist schreibgeschützt</translation>
    </message>
    <message>
        <source>the file is read-only</source>
        <translation>die Datei ist schreibgeschützt</translation>
    </message>
    <message>
        <source>you have no right to do this here</source>
        <translation>Sie haben hier keine Berechtigung dazu</translation>
    </message>
    <message>
        <source>the file would pass the size limit set for this program</source>
        <translation>die Datei würde die für dieses Programm festgelegte Größengrenze überschreiten</translation>
    </message>
    <message>
        <source>the file does not exist</source>
        <translation>die Datei existiert nicht</translation>
    </message>
    <message>
        <source>the file is too large to be read (at most %1 bytes are read)</source>
        <translation>die Datei ist zu groß zum Lesen (höchstens %1 Bytes werden gelesen)</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>a folder stands where the file should be</source>
        <translation>an der Stelle der Datei befindet sich ein Ordner</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>der Ordner %1 existiert nicht</translation>
    </message>
    <message>
        <source>the path names no folder on this machine</source>
        <translation>der Pfad bezeichnet keinen Ordner auf diesem Rechner</translation>
    </message>
    <message>
        <source>too many levels of symbolic links</source>
        <translation>zu viele verkettete symbolische Verknüpfungen</translation>
    </message>
    <message>
        <source>process %1 (%2) holds the lock</source>
        <translation>Prozess %1 (%2) hält die Sperre</translation>
    </message>
    <message>
        <source>the lock %1 cannot be used</source>
        <translation>die Sperre %1 ist nicht verwendbar</translation>
    </message>
    <message>
        <source>cannot act as the owner of the prefix (user %1)</source>
        <translation>kann nicht als Eigentümer des Präfixes handeln (Benutzer %1)</translation>
    </message>
    <message>
        <source>a file of the commit cannot be read, so it could not be put back</source>
        <translation>eine Datei des Speichervorgangs ist nicht lesbar und hätte nicht wiederhergestellt werden können</translation>
    </message>
    <message>
        <source>the files of one commit must share a folder</source>
        <translation>die Dateien eines Speichervorgangs müssen im selben Ordner liegen</translation>
    </message>
    <message>
        <source>another program holds the lock</source>
        <translation>ein anderes Programm hält die Sperre</translation>
    </message>
    <message>
        <source>process %1 holds the lock</source>
        <translation>Prozess %1 hält die Sperre</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>no record of a commit</source>
        <translation>kein Protokoll eines Speichervorgangs</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no file of the user&apos;s folder</source>
        <translation>„%1“ bezeichnet keine Datei im Ordner des Benutzers</translation>
    </message>
    <message>
        <source>no entry %1</source>
        <translation>kein Eintrag %1</translation>
    </message>
    <message>
        <source>no entry</source>
        <translation>kein Eintrag</translation>
    </message>
    <message>
        <source>entry %1 is damaged (%2)</source>
        <translation>Eintrag %1 ist beschädigt (%2)</translation>
    </message>
</context>
<context>
    <name>KeyMeaning</name>
    <message>
        <source>width of the user-sized frame, mm</source>
        <translation>Breite des Rahmens in Benutzergröße, mm</translation>
    </message>
    <message>
        <source>length of the user-sized frame, mm</source>
        <translation>Länge des Rahmens in Benutzergröße, mm</translation>
    </message>
    <message>
        <source>colour number of the double frame</source>
        <translation>Farbnummer des Doppelrahmens</translation>
    </message>
    <message>
        <source>offset of the double frame, mm on paper</source>
        <translation>Versatz des Doppelrahmens, mm auf dem Papier</translation>
    </message>
    <message>
        <source>layer name of the frame</source>
        <translation>Layername des Rahmens</translation>
    </message>
    <message>
        <source>default unit in model space: 0 mm, 1 cm, 2 m</source>
        <translation>Standardeinheit im Modellbereich: 0 mm, 1 cm, 2 m</translation>
    </message>
    <message>
        <source>default unit in paper space: 0 mm, 1 cm, 2 m</source>
        <translation>Standardeinheit im Papierbereich: 0 mm, 1 cm, 2 m</translation>
    </message>
    <message>
        <source>slant of the text styles, degrees</source>
        <translation>Neigung der Textstile, Grad</translation>
    </message>
    <message>
        <source>compression of the text styles</source>
        <translation>Stauchung der Textstile</translation>
    </message>
    <message>
        <source>height of style GC1, mm on paper</source>
        <translation>Höhe des Stils GC1, mm auf dem Papier</translation>
    </message>
    <message>
        <source>height of style GC2</source>
        <translation>Höhe des Stils GC2</translation>
    </message>
    <message>
        <source>height of style GC3</source>
        <translation>Höhe des Stils GC3</translation>
    </message>
    <message>
        <source>height of style GC4</source>
        <translation>Höhe des Stils GC4</translation>
    </message>
    <message>
        <source>height of style GC5</source>
        <translation>Höhe des Stils GC5</translation>
    </message>
    <message>
        <source>height of style GC7</source>
        <translation>Höhe des Stils GC7</translation>
    </message>
    <message>
        <source>height of style GC10</source>
        <translation>Höhe des Stils GC10</translation>
    </message>
    <message>
        <source>height of style GC15</source>
        <translation>Höhe des Stils GC15</translation>
    </message>
    <message>
        <source>text height of the dimension style GCC</source>
        <translation>Texthöhe des Bemaßungsstils GCC</translation>
    </message>
    <message>
        <source>colour of the dimension style GCC</source>
        <translation>Farbe des Bemaßungsstils GCC</translation>
    </message>
    <message>
        <source>layer to use after the command: 0 the GC layers, 1 the current layer</source>
        <translation>Layer nach dem Befehl: 0 die GC-Layer, 1 der aktuelle Layer</translation>
    </message>
    <message>
        <source>name of the office</source>
        <translation>Name des Büros</translation>
    </message>
    <message>
        <source>address of the office</source>
        <translation>Anschrift des Büros</translation>
    </message>
    <message>
        <source>postal code of the office</source>
        <translation>Postleitzahl des Büros</translation>
    </message>
    <message>
        <source>town of the office</source>
        <translation>Ort des Büros</translation>
    </message>
    <message>
        <source>telephone number of the office</source>
        <translation>Telefonnummer des Büros</translation>
    </message>
    <message>
        <source>fax number of the office</source>
        <translation>Faxnummer des Büros</translation>
    </message>
    <message>
        <source>font of style GC1</source>
        <translation>Schrift des Stils GC1</translation>
    </message>
    <message>
        <source>font of style GC2</source>
        <translation>Schrift des Stils GC2</translation>
    </message>
    <message>
        <source>font of style GC3</source>
        <translation>Schrift des Stils GC3</translation>
    </message>
    <message>
        <source>font of style GC4</source>
        <translation>Schrift des Stils GC4</translation>
    </message>
    <message>
        <source>font of style GC5</source>
        <translation>Schrift des Stils GC5</translation>
    </message>
    <message>
        <source>font of style GC7</source>
        <translation>Schrift des Stils GC7</translation>
    </message>
    <message>
        <source>font of style GC10</source>
        <translation>Schrift des Stils GC10</translation>
    </message>
    <message>
        <source>font of style GC15</source>
        <translation>Schrift des Stils GC15</translation>
    </message>
    <message>
        <source>font of the dimension style</source>
        <translation>Schrift des Bemaßungsstils</translation>
    </message>
    <message>
        <source>AutoCAD command after a style is chosen: 0 none, 1 one-line text, 2 dynamic text, 3 paragraph text</source>
        <translation>AutoCAD-Befehl nach der Wahl eines Stils: 0 keiner, 1 einzeiliger Text, 2 dynamischer Text, 3 Absatztext</translation>
    </message>
    <message>
        <source>language of the add-on: FRA, ENG, DEU, ITA</source>
        <translation>Sprache der Erweiterung: FRA, ENG, DEU, ITA</translation>
    </message>
    <message>
        <source>show the add-on&apos;s logo while modules load</source>
        <translation>das Logo der Erweiterung beim Laden der Module zeigen</translation>
    </message>
    <message>
        <source>show the user profile of the drawing</source>
        <translation>das Benutzerprofil der Zeichnung zeigen</translation>
    </message>
    <message>
        <source>default colour of Zmult 1:10</source>
        <translation>Standardfarbe von Zmult 1:10</translation>
    </message>
    <message>
        <source>default colour of Zmult 1:20</source>
        <translation>Standardfarbe von Zmult 1:20</translation>
    </message>
    <message>
        <source>default colour of Zmult 1:50</source>
        <translation>Standardfarbe von Zmult 1:50</translation>
    </message>
    <message>
        <source>default colour of Zmult 1:100</source>
        <translation>Standardfarbe von Zmult 1:100</translation>
    </message>
    <message>
        <source>default colour of Zmult 1:200</source>
        <translation>Standardfarbe von Zmult 1:200</translation>
    </message>
    <message>
        <source>default colour of Zmult 1:500</source>
        <translation>Standardfarbe von Zmult 1:500</translation>
    </message>
    <message>
        <source>path of the Windows explorer</source>
        <translation>Pfad des Windows-Explorers</translation>
    </message>
    <message>
        <source>path of the calculator</source>
        <translation>Pfad des Rechners</translation>
    </message>
    <message>
        <source>path of the WordPad editor</source>
        <translation>Pfad des Editors WordPad</translation>
    </message>
    <message>
        <source>path of the notepad</source>
        <translation>Pfad des Notepad-Editors</translation>
    </message>
    <message>
        <source>path of Acrobat Reader</source>
        <translation>Pfad von Acrobat Reader</translation>
    </message>
    <message>
        <source>path of a personal program</source>
        <translation>Pfad eines eigenen Programms</translation>
    </message>
    <message>
        <source>drawing of the result: polyligne (a polyline) or points</source>
        <translation>Zeichnung des Ergebnisses: polyligne (Polylinie) oder points (Punkte)</translation>
    </message>
    <message>
        <source>drawing of the slope: 2 (2D) or 3 (3D)</source>
        <translation>Zeichnung der Böschung: 2 (2D) oder 3 (3D)</translation>
    </message>
    <message>
        <source>horizontal distance of the slope</source>
        <translation>horizontaler Abstand der Böschung</translation>
    </message>
    <message>
        <source>vertical distance of the slope</source>
        <translation>vertikaler Abstand der Böschung</translation>
    </message>
    <message>
        <source>initial search length, m</source>
        <translation>anfängliche Suchlänge, m</translation>
    </message>
    <message>
        <source>number of searches over 360 degrees</source>
        <translation>Anzahl der Suchen über 360 Grad</translation>
    </message>
    <message>
        <source>spacing between the searches</source>
        <translation>Abstand zwischen den Suchen</translation>
    </message>
    <message>
        <source>scale factor of the direction arrows</source>
        <translation>Maßstabsfaktor der Richtungspfeile</translation>
    </message>
</context>
<context>
    <name>OfficeStandard</name>
    <message>
        <source>The office standard (%1) fixes this value.</source>
        <translation>Der Bürostandard (%1) legt diesen Wert fest.</translation>
    </message>
    <message>
        <source>%1 is no key of Brimo&apos;s settings</source>
        <translation>%1 ist kein Schlüssel der Einstellungen von Brimo</translation>
    </message>
    <message>
        <source>%1=%2: a locked key takes 1, an unlocked one 0</source>
        <translation>%1=%2: ein gesperrter Schlüssel nimmt 1, ein freier 0</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, Zeile %2</translation>
    </message>
    <message>
        <source>%1: %2; the office standard is ignored</source>
        <translation>%1: %2; der Bürostandard wird ignoriert</translation>
    </message>
</context>
<context>
    <name>SettingValue</name>
    <message>
        <source>%1: the value holds a line break or another control character</source>
        <translation>%1: der Wert enthält einen Zeilenumbruch oder ein anderes Steuerzeichen</translation>
    </message>
    <message>
        <source>%1: %2 is none of %3</source>
        <translation>%1: %2 ist keiner der Werte %3</translation>
    </message>
    <message>
        <source>%1: %2 is no number</source>
        <translation>%1: %2 ist keine Zahl</translation>
    </message>
    <message>
        <source>%1: %2 holds a double quote, which would end its Lisp string</source>
        <translation>%1: %2 enthält ein doppeltes Anführungszeichen, das seine Lisp-Zeichenkette beenden würde</translation>
    </message>
</context>
<context>
    <name>SettingsText</name>
    <message>
        <source>write what each dialog&apos;s OK would write for the user
(both sections) to a profile file; FILE &quot;-&quot; is the
standard output</source>
        <translation>schreibt, was das OK jedes Dialogs für den Benutzer
schreiben würde (beide Abschnitte), in eine
Profildatei; FILE „-“ ist die Standardausgabe</translation>
    </message>
    <message>
        <source>set the keys of [Brimo_Gene] and [Brimo_Talus] of a
profile file; FILE &quot;-&quot; is the standard input</source>
        <translation>setzt die Schlüssel von [Brimo_Gene] und [Brimo_Talus]
einer Profildatei; FILE „-“ ist die Standardeingabe</translation>
    </message>
    <message>
        <source>this text, or the usage of one command</source>
        <translation>dieser Text oder der Aufruf eines Befehls</translation>
    </message>
    <message>
        <source>the version</source>
        <translation>die Version</translation>
    </message>
    <message>
        <source>Usage: brimo-settings COMMAND [OPTION...] [ARGUMENT...]

Reads and writes the settings of the Zorel add-on&apos;s variable editor (Brimo)
as its dialogs do: the values of section Brimo_Gene (general dialog) or
Brimo_Talus (slope dialog) of the user&apos;s Brimo.ini, and the Lisp files.
</source>
        <translation>Aufruf: brimo-settings COMMAND [OPTION...] [ARGUMENT...]

Liest und schreibt die Einstellungen des Variableneditors (Brimo) der
Zorel-Erweiterung so wie seine Dialoge: die Werte des Abschnitts Brimo_Gene
(allgemeiner Dialog) oder Brimo_Talus (Böschungsdialog) in der Brimo.ini
des Benutzers sowie die Lisp-Dateien.
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
        <translation>Rückgabewert:
  0  erledigt, ob sich etwas geändert hat oder nicht
  2  abgelehnt: falsche Option, unbekannter Schlüssel, Wert, der keine
     Zahl ist, Wert außerhalb seiner Auswahl, doppeltes Anführungszeichen
     oder Steuerzeichen in einem Text; nichts wurde geschrieben
  3  ein Präfix ist fehlgeschlagen (gemeldet); die anderen liefen weiter
Mit --detailed-exitcodes (Puppets Konvention):
  0  erledigt, nichts geändert (mit --check: nichts würde sich ändern)
  1  abgelehnt, nichts versucht
  2  erledigt, Dateien geändert (mit --check: würden sich ändern)
  4  ein Präfix ist fehlgeschlagen, anderswo wurde nichts geändert
  6  ein Präfix ist fehlgeschlagen, und ein anderes wurde geändert

Siehe brimo-settings(1).
</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Befehle:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>Options take their value as &quot;--opt value&quot; or &quot;--opt=value&quot;; &quot;--&quot; ends them.</source>
        <translation>Optionen nehmen ihren Wert als „--opt Wert“ oder „--opt=Wert“;
„--“ beendet sie.</translation>
    </message>
    <message>
        <source>%1: no such command</source>
        <translation>%1: unbekannter Befehl</translation>
    </message>
    <message>
        <source>Usage: brimo-settings %1 [OPTION...]</source>
        <translation>Aufruf: brimo-settings %1 [OPTION...]</translation>
    </message>
    <message>
        <source>%1: not KEY=VALUE</source>
        <translation>%1: nicht in der Form KEY=VALUE</translation>
    </message>
    <message>
        <source>%1: no key of the %2 settings</source>
        <translation>%1: kein Schlüssel der Einstellungen „%2“</translation>
    </message>
    <message>
        <source>%1: characters that Windows-1252 lacks are written as ?, as the dialog writes them: %2</source>
        <translation>%1: Zeichen, die Windows-1252 nicht kennt, werden wie im Dialog als ? geschrieben: %2</translation>
    </message>
    <message>
        <source>--prefixes-from %1: cannot be read</source>
        <translation>--prefixes-from %1: kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>the dialog whose keys get and set use (general)</source>
        <translation>der Dialog, dessen Schlüssel get und set
verwenden (general)</translation>
    </message>
    <message>
        <source>exit statuses as Puppet&apos;s option of that name</source>
        <translation>Rückgabewerte wie Puppets gleichnamige Option</translation>
    </message>
    <message>
        <source>a Wine prefix in place of $WINEPREFIX (repeatable)</source>
        <translation>ein Wine-Präfix anstelle von $WINEPREFIX
(wiederholbar)</translation>
    </message>
    <message>
        <source>prefixes from FILE, one a line (&apos;#&apos; starts a comment)</source>
        <translation>Präfixe aus FILE, einer pro Zeile („#“ beginnt
einen Kommentar)</translation>
    </message>
    <message>
        <source>the user in place of [Users] actuel of zorel.ini</source>
        <translation>der Benutzer anstelle von [Users] actuel der
zorel.ini</translation>
    </message>
    <message>
        <source>this text</source>
        <translation>dieser Text</translation>
    </message>
    <message>
        <source>this text and every option as Qt lists them</source>
        <translation>dieser Text und alle Optionen, wie Qt sie
auflistet</translation>
    </message>
    <message>
        <source>The settings of Brimo&apos;s dialogs from the command line.</source>
        <translation>Die Einstellungen der Dialoge von Brimo auf der Kommandozeile.</translation>
    </message>
    <message>
        <source>KEY, KEY=VALUE, FILE, N or COMMAND</source>
        <translation>KEY, KEY=VALUE, FILE, N oder COMMAND</translation>
    </message>
    <message>
        <source>--dialog %1: general or slope</source>
        <translation>--dialog %1: general oder slope</translation>
    </message>
    <message>
        <source>no such folder</source>
        <translation>dieser Ordner existiert nicht</translation>
    </message>
    <message>
        <source>%1: %2; give the key a value</source>
        <translation>%1: %2; geben Sie dem Schlüssel einen Wert</translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation> und %1 weitere</translation>
    </message>
    <message>
        <source>export takes one FILE, and at most one --prefix</source>
        <translation>export nimmt genau ein FILE und höchstens ein --prefix</translation>
    </message>
    <message>
        <source>%1: %2: the stored text of %3 characters is cut to 254, as the dialog reads it</source>
        <translation>%1: %2: der gespeicherte Text mit %3 Zeichen wird auf 254 gekürzt, wie ihn der Dialog liest</translation>
    </message>
    <message>
        <source>%1: the stored text holds a double quote, which would end its Lisp string; give the key a value</source>
        <translation>%1: der gespeicherte Text enthält ein doppeltes Anführungszeichen, das seine Lisp-Zeichenkette beenden würde; geben Sie dem Schlüssel einen Wert</translation>
    </message>
    <message>
        <source>apply takes one FILE</source>
        <translation>apply nimmt genau ein FILE</translation>
    </message>
    <message>
        <source>%1: cannot be read</source>
        <translation>%1: kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>%1: no key of [Brimo_Gene] or [Brimo_Talus]</source>
        <translation>%1: kein Schlüssel in [Brimo_Gene] oder [Brimo_Talus]</translation>
    </message>
    <message>
        <source>%1: already so</source>
        <translation>%1: bereits so</translation>
    </message>
    <message>
        <source>%1: would change</source>
        <translation>%1: würde sich ändern</translation>
    </message>
    <message>
        <source>%1: changed</source>
        <translation>%1: geändert</translation>
    </message>
    <message>
        <source>file %1</source>
        <translation>Datei %1</translation>
    </message>
    <message>
        <source>would change %1, already so %2, failed %3</source>
        <translation>würden sich ändern %1, bereits so %2, fehlgeschlagen %3</translation>
    </message>
    <message>
        <source>changed %1, already so %2, failed %3</source>
        <translation>geändert %1, bereits so %2, fehlgeschlagen %3</translation>
    </message>
    <message>
        <source>%1: no entry number</source>
        <translation>%1: keine Eintragsnummer</translation>
    </message>
    <message>
        <source>set every key that the office standard gives or locks
to its value; with --check, report which users differ
from it, and in which keys</source>
        <translation>setzt jeden Schlüssel, den der Bürostandard vorgibt
oder sperrt, auf dessen Wert; mit --check meldet er,
welche Benutzer davon abweichen und in welchen
Schlüsseln</translation>
    </message>
    <message>
        <source>get: put &quot;stored&quot;, &quot;office&quot;, &quot;locked&quot; or &quot;default&quot;
and a tab in front</source>
        <translation>get: „stored“, „office“, „locked“ oder „default“
und einen Tabulator voranstellen</translation>
    </message>
    <message>
        <source>set, apply, restore, heal: report what would
change, write nothing</source>
        <translation>set, apply, restore, heal: meldet, was sich
ändern würde, schreibt nichts</translation>
    </message>
    <message>
        <source>%1: the office standard %2 locks it at &quot;%3&quot;</source>
        <translation>%1: der Bürostandard %2 sperrt ihn auf „%3“</translation>
    </message>
    <message>
        <source>heal takes no argument</source>
        <translation>heal nimmt kein Argument</translation>
    </message>
    <message>
        <source>%1: no office standard to heal to</source>
        <translation>%1: kein Bürostandard, an den angeglichen werden kann</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; holds &quot;%3&quot;, which this locale&apos;s numbers do not take for their decimal symbol (&quot;%4&quot;); the add-on receives %2 as written</source>
        <translation>%1: „%2“ enthält „%3“, das die Zahlen dieses Gebietsschemas nicht als Dezimaltrennzeichen nehmen („%4“); die Erweiterung erhält %2 so, wie es dasteht</translation>
    </message>
    <message>
        <source>get: print the bare value of one key</source>
        <translation>get: gibt nur den Wert eines Schlüssels aus</translation>
    </message>
    <message>
        <source>no command</source>
        <translation>kein Befehl</translation>
    </message>
    <message>
        <source>get --value takes one KEY</source>
        <translation>get --value nimmt genau einen KEY</translation>
    </message>
    <message>
        <source>keys written out as the dialog shows them, none being stored: %1</source>
        <translation>Schlüssel, die wie im Dialog angezeigt geschrieben werden, da keiner gespeichert war: %1</translation>
    </message>
    <message>
        <source>list the last 20 commits of the user&apos;s files (by the
dialogs&apos; OK, set, apply, restore, heal): number,
time, program, what, keys changed, who, run; show N:
that entry with each key&apos;s old and new value</source>
        <translation>listet die letzten 20 Speichervorgänge der Dateien des
Benutzers auf (durch das OK der Dialoge, set, apply,
restore, heal): Nummer, Zeit, Programm, Vorgang,
geänderte Schlüssel, wer, Lauf; show N: dieser
Eintrag mit altem und neuem Wert jedes Schlüssels</translation>
    </message>
    <message>
        <source>restore: every prefix back to before that run of
the tool (its id in the history)</source>
        <translation>restore: jedes Präfix zurück auf den Stand vor
diesem Lauf (seine Kennung im Verlauf)</translation>
    </message>
    <message>
        <source>history takes no argument, or show N</source>
        <translation>history nimmt kein Argument oder show N</translation>
    </message>
    <message>
        <source>%1: commit %2 (%3) came after run %4; restore it first</source>
        <translation>%1: Speichervorgang %2 (%3) kam nach Lauf %4; stellen Sie zuerst diesen wieder her</translation>
    </message>
    <message>
        <source>restore takes at most one entry number, or --run ID</source>
        <translation>restore nimmt höchstens eine Eintragsnummer oder --run ID</translation>
    </message>
    <message>
        <source>list every key of both dialogs: dialog, key, Lisp
name, type, default, choices, office value, meaning</source>
        <translation>listet jeden Schlüssel beider Dialoge auf: Dialog,
Schlüssel, Lisp-Name, Typ, Vorgabe, Auswahl,
Bürowert, Bedeutung</translation>
    </message>
    <message>
        <source>keys takes no argument</source>
        <translation>keys nimmt kein Argument</translation>
    </message>
    <message>
        <source>print each stored value, else the office&apos;s or the
default (all keys when none is given), as KEY=VALUE
lines</source>
        <translation>gibt jeden gespeicherten Wert aus, sonst den des
Büros oder die Vorgabe (alle Schlüssel, wenn keiner
angegeben ist), als Zeilen KEY=VALUE</translation>
    </message>
    <message>
        <source>check each value as its field does, then write both
files as the dialog&apos;s OK does; keys not given keep
their stored values</source>
        <translation>prüft jeden Wert wie sein Feld, schreibt dann beide
Dateien wie das OK des Dialogs; nicht angegebene
Schlüssel behalten ihren gespeicherten Wert</translation>
    </message>
    <message>
        <source>bring back both files as they were before the last
commit, before commit N of the history, or with
--run ID before that run; recorded in the history</source>
        <translation>stellt beide Dateien wieder her, wie sie vor dem
letzten Speichervorgang, vor Speichervorgang N des
Verlaufs oder mit --run ID vor diesem Lauf waren;
wird im Verlauf vermerkt</translation>
    </message>
    <message>
        <source>get, keys, history, set, apply, restore, heal: print
one JSON document (set, apply, restore, heal: per
prefix the user, changed, keys with old and new
values, files, error)</source>
        <translation>get, keys, history, set, apply, restore, heal: gibt
ein JSON-Dokument aus (set, apply, restore, heal: je
Präfix Benutzer, changed, Schlüssel mit altem und
neuem Wert, Dateien, error)</translation>
    </message>
</context>
<context>
    <name>StartProblems</name>
    <message>
        <source>The file %1 cannot be read: %2. The dialog shows the default values, and OK will fail until the file is put right.</source>
        <translation>Die Datei %1 kann nicht gelesen werden: %2. Der Dialog zeigt die Standardwerte, und OK schlägt fehl, bis die Datei in Ordnung gebracht ist.</translation>
    </message>
    <message>
        <source>Another program kept the file %1 locked through the whole wait: %2. The dialog shows the file as it stands, and OK will fail while that program keeps it.</source>
        <translation>Ein anderes Programm hat die Datei %1 während der ganzen Wartezeit gesperrt: %2. Der Dialog zeigt die Datei, wie sie ist, und OK schlägt fehl, solange dieses Programm sie sperrt.</translation>
    </message>
    <message>
        <source>The lock of the file %1 cannot be had: %2. OK will fail: nothing can be saved.</source>
        <translation>Die Sperre der Datei %1 ist nicht zu erhalten: %2. OK schlägt fehl: Nichts kann gespeichert werden.</translation>
    </message>
    <message>
        <source>A save into the folder of %1 was cut off, and its journal was damaged: the journal was removed and the files were left as they stand. Check the values before you press OK.</source>
        <translation>Ein Speichervorgang im Ordner von %1 wurde abgebrochen, und sein Journal war beschädigt: Das Journal wurde entfernt, die Dateien blieben, wie sie sind. Prüfen Sie die Werte, bevor Sie auf OK drücken.</translation>
    </message>
    <message>
        <source>%1 The dialog shows your own values and the program&apos;s defaults.</source>
        <translation>%1 Der Dialog zeigt Ihre eigenen Werte und die Vorgaben des Programms.</translation>
    </message>
</context>
</TS>
