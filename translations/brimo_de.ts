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
        <source>The field "%1" holds a double quote ("), which the Lisp file cannot take. Remove it, then press OK again.</source>
        <translation>Das Feld „%1“ enthält ein Anführungszeichen ("), das die Lisp-Datei nicht aufnehmen kann. Entfernen Sie es und drücken Sie dann erneut auf OK.</translation>
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
</context>
<context>
    <name>History</name>
    <message>
        <source>no record of a commit</source>
        <translation>kein Protokoll eines Speichervorgangs</translation>
    </message>
    <message>
        <source>"%1" names no file of the user's folder</source>
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
</context>
</TS>