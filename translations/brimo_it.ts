<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name>CommitFailureReport</name>
    <message>
        <source>The window stays open: press OK again in a moment.</source>
        <translation>La finestra resta aperta: premete di nuovo OK tra un istante.</translation>
    </message>
    <message>
        <source>The field &quot;%1&quot; holds a double quote (&quot;), which the Lisp file cannot take. Remove it, then press OK again.</source>
        <translation>Il campo «%1» contiene un doppio apice (&quot;), che il file Lisp non può accogliere. Toglietelo, poi premete di nuovo OK.</translation>
    </message>
    <message>
        <source>The file %1 could not be written: %2.</source>
        <translation>Non è stato possibile scrivere il file %1: %2.</translation>
    </message>
    <message>
        <source>No file was changed.</source>
        <translation>Nessun file è stato modificato.</translation>
    </message>
</context>
<context>
    <name>Failure</name>
    <message>
        <source>the system refused it</source>
        <translation>il sistema l&apos;ha rifiutato</translation>
    </message>
    <message>
        <source>no room is left on the disk</source>
        <translation>non c&apos;è più spazio sul disco</translation>
    </message>
    <message>
        <source>the disk can only be read</source>
        <translation>il disco è di sola lettura</translation>
    </message>
    <message>
        <source>the file is read-only</source>
        <translation>il file è di sola lettura</translation>
    </message>
    <message>
        <source>you have no right to do this here</source>
        <translation>non avete il permesso di farlo qui</translation>
    </message>
    <message>
        <source>the file would pass the size limit set for this program</source>
        <translation>il file supererebbe il limite di dimensione fissato per questo programma</translation>
    </message>
    <message>
        <source>the file does not exist</source>
        <translation>il file non esiste</translation>
    </message>
    <message>
        <source>the file is too large to be read (at most %1 bytes are read)</source>
        <translation>il file è troppo grande per essere letto (se ne leggono al massimo %1 byte)</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>non è un file normale</translation>
    </message>
    <message>
        <source>a folder stands where the file should be</source>
        <translation>al posto del file c&apos;è una cartella</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>la cartella %1 non esiste</translation>
    </message>
    <message>
        <source>the path names no folder on this machine</source>
        <translation>il percorso non indica alcuna cartella su questo computer</translation>
    </message>
    <message>
        <source>too many levels of symbolic links</source>
        <translation>troppi collegamenti simbolici in sequenza</translation>
    </message>
    <message>
        <source>process %1 (%2) holds the lock</source>
        <translation>il processo %1 (%2) detiene il blocco</translation>
    </message>
    <message>
        <source>the lock %1 cannot be used</source>
        <translation>il blocco %1 non è utilizzabile</translation>
    </message>
    <message>
        <source>cannot act as the owner of the prefix (user %1)</source>
        <translation>impossibile agire come proprietario del prefisso (utente %1)</translation>
    </message>
    <message>
        <source>a file of the commit cannot be read, so it could not be put back</source>
        <translation>un file del salvataggio non è leggibile e non avrebbe potuto essere ripristinato</translation>
    </message>
    <message>
        <source>the files of one commit must share a folder</source>
        <translation>i file di un salvataggio devono stare nella stessa cartella</translation>
    </message>
    <message>
        <source>another program holds the lock</source>
        <translation>un altro programma detiene il blocco</translation>
    </message>
    <message>
        <source>process %1 holds the lock</source>
        <translation>il processo %1 detiene il blocco</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>no record of a commit</source>
        <translation>nessuna traccia di un salvataggio</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no file of the user&apos;s folder</source>
        <translation>«%1» non indica alcun file della cartella dell&apos;utente</translation>
    </message>
    <message>
        <source>no entry %1</source>
        <translation>nessuna voce %1</translation>
    </message>
    <message>
        <source>no entry</source>
        <translation>nessuna voce</translation>
    </message>
    <message>
        <source>entry %1 is damaged (%2)</source>
        <translation>la voce %1 è danneggiata (%2)</translation>
    </message>
</context>
<context>
    <name>KeyMeaning</name>
    <message>
        <source>width of the user-sized frame, mm</source>
        <translation>larghezza della cornice a misura dell&apos;utente, mm</translation>
    </message>
    <message>
        <source>length of the user-sized frame, mm</source>
        <translation>lunghezza della cornice a misura dell&apos;utente, mm</translation>
    </message>
    <message>
        <source>colour number of the double frame</source>
        <translation>numero di colore della doppia cornice</translation>
    </message>
    <message>
        <source>offset of the double frame, mm on paper</source>
        <translation>scostamento della doppia cornice, mm sulla carta</translation>
    </message>
    <message>
        <source>layer name of the frame</source>
        <translation>nome del layer della cornice</translation>
    </message>
    <message>
        <source>default unit in model space: 0 mm, 1 cm, 2 m</source>
        <translation>unità predefinita nello spazio modello: 0 mm, 1 cm, 2 m</translation>
    </message>
    <message>
        <source>default unit in paper space: 0 mm, 1 cm, 2 m</source>
        <translation>unità predefinita nello spazio carta: 0 mm, 1 cm, 2 m</translation>
    </message>
    <message>
        <source>slant of the text styles, degrees</source>
        <translation>inclinazione degli stili di testo, gradi</translation>
    </message>
    <message>
        <source>compression of the text styles</source>
        <translation>compressione degli stili di testo</translation>
    </message>
    <message>
        <source>height of style GC1, mm on paper</source>
        <translation>altezza dello stile GC1, mm sulla carta</translation>
    </message>
    <message>
        <source>height of style GC2</source>
        <translation>altezza dello stile GC2</translation>
    </message>
    <message>
        <source>height of style GC3</source>
        <translation>altezza dello stile GC3</translation>
    </message>
    <message>
        <source>height of style GC4</source>
        <translation>altezza dello stile GC4</translation>
    </message>
    <message>
        <source>height of style GC5</source>
        <translation>altezza dello stile GC5</translation>
    </message>
    <message>
        <source>height of style GC7</source>
        <translation>altezza dello stile GC7</translation>
    </message>
    <message>
        <source>height of style GC10</source>
        <translation>altezza dello stile GC10</translation>
    </message>
    <message>
        <source>height of style GC15</source>
        <translation>altezza dello stile GC15</translation>
    </message>
    <message>
        <source>text height of the dimension style GCC</source>
        <translation>altezza del testo dello stile di quota GCC</translation>
    </message>
    <message>
        <source>colour of the dimension style GCC</source>
        <translation>colore dello stile di quota GCC</translation>
    </message>
    <message>
        <source>layer to use after the command: 0 the GC layers, 1 the current layer</source>
        <translation>layer da usare dopo il comando: 0 i layer GC, 1 il layer corrente</translation>
    </message>
    <message>
        <source>name of the office</source>
        <translation>nome dell&apos;ufficio</translation>
    </message>
    <message>
        <source>address of the office</source>
        <translation>indirizzo dell&apos;ufficio</translation>
    </message>
    <message>
        <source>postal code of the office</source>
        <translation>codice postale dell&apos;ufficio</translation>
    </message>
    <message>
        <source>town of the office</source>
        <translation>città dell&apos;ufficio</translation>
    </message>
    <message>
        <source>telephone number of the office</source>
        <translation>numero di telefono dell&apos;ufficio</translation>
    </message>
    <message>
        <source>fax number of the office</source>
        <translation>numero di fax dell&apos;ufficio</translation>
    </message>
    <message>
        <source>font of style GC1</source>
        <translation>carattere dello stile GC1</translation>
    </message>
    <message>
        <source>font of style GC2</source>
        <translation>carattere dello stile GC2</translation>
    </message>
    <message>
        <source>font of style GC3</source>
        <translation>carattere dello stile GC3</translation>
    </message>
    <message>
        <source>font of style GC4</source>
        <translation>carattere dello stile GC4</translation>
    </message>
    <message>
        <source>font of style GC5</source>
        <translation>carattere dello stile GC5</translation>
    </message>
    <message>
        <source>font of style GC7</source>
        <translation>carattere dello stile GC7</translation>
    </message>
    <message>
        <source>font of style GC10</source>
        <translation>carattere dello stile GC10</translation>
    </message>
    <message>
        <source>font of style GC15</source>
        <translation>carattere dello stile GC15</translation>
    </message>
    <message>
        <source>font of the dimension style</source>
        <translation>carattere dello stile di quota</translation>
    </message>
    <message>
        <source>AutoCAD command after a style is chosen: 0 none, 1 one-line text, 2 dynamic text, 3 paragraph text</source>
        <translation>comando AutoCAD dopo la scelta di uno stile: 0 nessuno, 1 testo su una riga, 2 testo dinamico, 3 testo multilinea</translation>
    </message>
    <message>
        <source>language of the add-on: FRA, ENG, DEU, ITA</source>
        <translation>lingua del modulo: FRA, ENG, DEU, ITA</translation>
    </message>
    <message>
        <source>show the add-on&apos;s logo while modules load</source>
        <translation>mostrare il logo del modulo durante il caricamento dei moduli</translation>
    </message>
    <message>
        <source>show the user profile of the drawing</source>
        <translation>mostrare il profilo utente del disegno</translation>
    </message>
    <message>
        <source>default colour of Zmult 1:10</source>
        <translation>colore predefinito di Zmult 1:10</translation>
    </message>
    <message>
        <source>default colour of Zmult 1:20</source>
        <translation>colore predefinito di Zmult 1:20</translation>
    </message>
    <message>
        <source>default colour of Zmult 1:50</source>
        <translation>colore predefinito di Zmult 1:50</translation>
    </message>
    <message>
        <source>default colour of Zmult 1:100</source>
        <translation>colore predefinito di Zmult 1:100</translation>
    </message>
    <message>
        <source>default colour of Zmult 1:200</source>
        <translation>colore predefinito di Zmult 1:200</translation>
    </message>
    <message>
        <source>default colour of Zmult 1:500</source>
        <translation>colore predefinito di Zmult 1:500</translation>
    </message>
    <message>
        <source>path of the Windows explorer</source>
        <translation>percorso di Esplora risorse di Windows</translation>
    </message>
    <message>
        <source>path of the calculator</source>
        <translation>percorso della calcolatrice</translation>
    </message>
    <message>
        <source>path of the WordPad editor</source>
        <translation>percorso dell&apos;editor WordPad</translation>
    </message>
    <message>
        <source>path of the notepad</source>
        <translation>percorso del Blocco note</translation>
    </message>
    <message>
        <source>path of Acrobat Reader</source>
        <translation>percorso di Acrobat Reader</translation>
    </message>
    <message>
        <source>path of a personal program</source>
        <translation>percorso di un programma personale</translation>
    </message>
    <message>
        <source>drawing of the result: polyligne (a polyline) or points</source>
        <translation>disegno del risultato: polyligne (polilinea) o points (punti)</translation>
    </message>
    <message>
        <source>drawing of the slope: 2 (2D) or 3 (3D)</source>
        <translation>disegno della scarpata: 2 (2D) o 3 (3D)</translation>
    </message>
    <message>
        <source>horizontal distance of the slope</source>
        <translation>distanza orizzontale della scarpata</translation>
    </message>
    <message>
        <source>vertical distance of the slope</source>
        <translation>distanza verticale della scarpata</translation>
    </message>
    <message>
        <source>initial search length, m</source>
        <translation>lunghezza iniziale di ricerca, m</translation>
    </message>
    <message>
        <source>number of searches over 360 degrees</source>
        <translation>numero di ricerche su 360 gradi</translation>
    </message>
    <message>
        <source>spacing between the searches</source>
        <translation>distanza tra le ricerche</translation>
    </message>
    <message>
        <source>scale factor of the direction arrows</source>
        <translation>fattore di scala delle frecce di direzione</translation>
    </message>
</context>
<context>
    <name>OfficeStandard</name>
    <message>
        <source>The office standard (%1) fixes this value.</source>
        <translation>Lo standard dell&apos;ufficio (%1) fissa questo valore.</translation>
    </message>
    <message>
        <source>%1 is no key of Brimo&apos;s settings</source>
        <translation>%1 non è una chiave delle impostazioni di Brimo</translation>
    </message>
    <message>
        <source>%1=%2: a locked key takes 1, an unlocked one 0</source>
        <translation>%1=%2: una chiave bloccata prende 1, una libera 0</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, riga %2</translation>
    </message>
    <message>
        <source>%1: %2; the office standard is ignored</source>
        <translation>%1: %2; lo standard dell&apos;ufficio viene ignorato</translation>
    </message>
</context>
<context>
    <name>SettingValue</name>
    <message>
        <source>%1: the value holds a line break or another control character</source>
        <translation>%1: il valore contiene un a capo o un altro carattere di controllo</translation>
    </message>
    <message>
        <source>%1: %2 is none of %3</source>
        <translation>%1: %2 non è nessuno dei valori %3</translation>
    </message>
    <message>
        <source>%1: %2 is no number</source>
        <translation>%1: %2 non è un numero</translation>
    </message>
    <message>
        <source>%1: %2 holds a double quote, which would end its Lisp string</source>
        <translation>%1: %2 contiene delle virgolette doppie, che chiuderebbero la sua stringa Lisp</translation>
    </message>
</context>
<context>
    <name>SettingsText</name>
    <message>
        <source>write what each dialog&apos;s OK would write for the user
(both sections) to a profile file; FILE &quot;-&quot; is the
standard output</source>
        <translation>scrive in un file di profilo ciò che l&apos;OK di ogni
finestra scriverebbe per l&apos;utente (entrambe le
sezioni); FILE &quot;-&quot; è lo standard output</translation>
    </message>
    <message>
        <source>set the keys of [Brimo_Gene] and [Brimo_Talus] of a
profile file; FILE &quot;-&quot; is the standard input</source>
        <translation>imposta le chiavi di [Brimo_Gene] e [Brimo_Talus] di un
file di profilo; FILE &quot;-&quot; è lo standard input</translation>
    </message>
    <message>
        <source>this text, or the usage of one command</source>
        <translation>questo testo, o l&apos;uso di un comando</translation>
    </message>
    <message>
        <source>the version</source>
        <translation>la versione</translation>
    </message>
    <message>
        <source>Usage: brimo-settings COMMAND [OPTION...] [ARGUMENT...]

Reads and writes the settings of the Zorel add-on&apos;s variable editor (Brimo)
as its dialogs do: the values of section Brimo_Gene (general dialog) or
Brimo_Talus (slope dialog) of the user&apos;s Brimo.ini, and the Lisp files.
</source>
        <translation>Uso: brimo-settings COMMAND [OPTION...] [ARGUMENT...]

Legge e scrive le impostazioni dell&apos;editor di variabili (Brimo) del modulo
Zorel come fanno le sue finestre: i valori della sezione Brimo_Gene
(finestra generale) o Brimo_Talus (finestra delle scarpate) del Brimo.ini
dell&apos;utente, e i file Lisp.
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
        <translation>Codice di uscita:
  0  fatto, che qualcosa sia cambiato o no
  2  rifiutato: opzione errata, chiave sconosciuta, valore che non è un
     numero, valore fuori dalle sue scelte, virgolette doppie o carattere
     di controllo in un testo; nulla è stato scritto
  3  un prefisso non è riuscito (segnalato); gli altri sono andati avanti
Con --detailed-exitcodes (la convenzione di Puppet):
  0  fatto, nulla è cambiato (con --check: nulla cambierebbe)
  1  rifiutato, nulla tentato
  2  fatto, alcuni file sono cambiati (con --check: cambierebbero)
  4  un prefisso non è riuscito, altrove nulla è cambiato
  6  un prefisso non è riuscito, e un altro è cambiato

Vedere brimo-settings(1).
</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Comandi:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opzioni:</translation>
    </message>
    <message>
        <source>Options take their value as &quot;--opt value&quot; or &quot;--opt=value&quot;; &quot;--&quot; ends them.</source>
        <translation>Le opzioni prendono il loro valore come &quot;--opt valore&quot; o &quot;--opt=valore&quot;;
&quot;--&quot; le termina.</translation>
    </message>
    <message>
        <source>%1: no such command</source>
        <translation>%1: comando sconosciuto</translation>
    </message>
    <message>
        <source>Usage: brimo-settings %1 [OPTION...]</source>
        <translation>Uso: brimo-settings %1 [OPTION...]</translation>
    </message>
    <message>
        <source>%1: not KEY=VALUE</source>
        <translation>%1: non è nella forma KEY=VALUE</translation>
    </message>
    <message>
        <source>%1: no key of the %2 settings</source>
        <translation>%1: non è una chiave delle impostazioni «%2»</translation>
    </message>
    <message>
        <source>%1: characters that Windows-1252 lacks are written as ?, as the dialog writes them: %2</source>
        <translation>%1: i caratteri assenti da Windows-1252 sono scritti come ?, come li scrive la finestra: %2</translation>
    </message>
    <message>
        <source>--prefixes-from %1: cannot be read</source>
        <translation>--prefixes-from %1: non può essere letto</translation>
    </message>
    <message>
        <source>the dialog whose keys get and set use (general)</source>
        <translation>la finestra le cui chiavi usano get e set
(general)</translation>
    </message>
    <message>
        <source>exit statuses as Puppet&apos;s option of that name</source>
        <translation>codici di uscita come l&apos;omonima opzione di
Puppet</translation>
    </message>
    <message>
        <source>a Wine prefix in place of $WINEPREFIX (repeatable)</source>
        <translation>un prefisso Wine al posto di $WINEPREFIX
(ripetibile)</translation>
    </message>
    <message>
        <source>prefixes from FILE, one a line (&apos;#&apos; starts a comment)</source>
        <translation>prefissi da FILE, uno per riga (&apos;#&apos; inizia un
commento)</translation>
    </message>
    <message>
        <source>the user in place of [Users] actuel of zorel.ini</source>
        <translation>l&apos;utente al posto di [Users] actuel di
zorel.ini</translation>
    </message>
    <message>
        <source>this text</source>
        <translation>questo testo</translation>
    </message>
    <message>
        <source>this text and every option as Qt lists them</source>
        <translation>questo testo e tutte le opzioni come le
elenca Qt</translation>
    </message>
    <message>
        <source>The settings of Brimo&apos;s dialogs from the command line.</source>
        <translation>Le impostazioni delle finestre di Brimo dalla riga di comando.</translation>
    </message>
    <message>
        <source>KEY, KEY=VALUE, FILE, N or COMMAND</source>
        <translation>KEY, KEY=VALUE, FILE, N o COMMAND</translation>
    </message>
    <message>
        <source>--dialog %1: general or slope</source>
        <translation>--dialog %1: general o slope</translation>
    </message>
    <message>
        <source>no such folder</source>
        <translation>questa cartella non esiste</translation>
    </message>
    <message>
        <source>%1: %2; give the key a value</source>
        <translation>%1: %2; assegnate un valore alla chiave</translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation> e altre %1</translation>
    </message>
    <message>
        <source>export takes one FILE, and at most one --prefix</source>
        <translation>export richiede un solo FILE e al massimo un --prefix</translation>
    </message>
    <message>
        <source>%1: %2: the stored text of %3 characters is cut to 254, as the dialog reads it</source>
        <translation>%1: %2: il testo salvato di %3 caratteri è tagliato a 254, come lo legge la finestra</translation>
    </message>
    <message>
        <source>%1: the stored text holds a double quote, which would end its Lisp string; give the key a value</source>
        <translation>%1: il testo salvato contiene delle virgolette doppie, che chiuderebbero la sua stringa Lisp; assegnate un valore alla chiave</translation>
    </message>
    <message>
        <source>apply takes one FILE</source>
        <translation>apply richiede un solo FILE</translation>
    </message>
    <message>
        <source>%1: cannot be read</source>
        <translation>%1: non può essere letto</translation>
    </message>
    <message>
        <source>%1: no key of [Brimo_Gene] or [Brimo_Talus]</source>
        <translation>%1: nessuna chiave di [Brimo_Gene] o [Brimo_Talus]</translation>
    </message>
    <message>
        <source>%1: already so</source>
        <translation>%1: già così</translation>
    </message>
    <message>
        <source>%1: would change</source>
        <translation>%1: cambierebbe</translation>
    </message>
    <message>
        <source>%1: changed</source>
        <translation>%1: modificato</translation>
    </message>
    <message>
        <source>file %1</source>
        <translation>file: %1</translation>
    </message>
    <message>
        <source>would change %1, already so %2, failed %3</source>
        <translation>cambierebbero %1, già così %2, falliti %3</translation>
    </message>
    <message>
        <source>changed %1, already so %2, failed %3</source>
        <translation>modificati %1, già così %2, falliti %3</translation>
    </message>
    <message>
        <source>%1: no entry number</source>
        <translation>%1: non è un numero di voce</translation>
    </message>
    <message>
        <source>set every key that the office standard gives or locks
to its value; with --check, report which users differ
from it, and in which keys</source>
        <translation>imposta ogni chiave che lo standard dell&apos;ufficio
fissa o blocca al suo valore; con --check riporta
quali utenti se ne discostano, e in quali chiavi</translation>
    </message>
    <message>
        <source>get: put &quot;stored&quot;, &quot;office&quot;, &quot;locked&quot; or &quot;default&quot;
and a tab in front</source>
        <translation>get: mette davanti &quot;stored&quot;, &quot;office&quot;, &quot;locked&quot; o
&quot;default&quot; e una tabulazione</translation>
    </message>
    <message>
        <source>set, apply, restore, heal: report what would
change, write nothing</source>
        <translation>set, apply, restore, heal: riporta cosa
cambierebbe, non scrive nulla</translation>
    </message>
    <message>
        <source>%1: the office standard %2 locks it at &quot;%3&quot;</source>
        <translation>%1: lo standard dell&apos;ufficio %2 la blocca a «%3»</translation>
    </message>
    <message>
        <source>heal takes no argument</source>
        <translation>heal non accetta argomenti</translation>
    </message>
    <message>
        <source>%1: no office standard to heal to</source>
        <translation>%1: nessuno standard dell&apos;ufficio a cui conformarsi</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; holds &quot;%3&quot;, which this locale&apos;s numbers do not take for their decimal symbol (&quot;%4&quot;); the add-on receives %2 as written</source>
        <translation>%1: «%2» contiene «%3», che i numeri di questa lingua non usano come separatore decimale («%4»); il modulo riceve %2 così com&apos;è</translation>
    </message>
    <message>
        <source>get: print the bare value of one key</source>
        <translation>get: stampa il solo valore di una chiave</translation>
    </message>
    <message>
        <source>no command</source>
        <translation>nessun comando</translation>
    </message>
    <message>
        <source>get --value takes one KEY</source>
        <translation>get --value richiede una sola KEY</translation>
    </message>
    <message>
        <source>keys written out as the dialog shows them, none being stored: %1</source>
        <translation>chiavi scritte come le mostra la finestra, nessuna essendo salvata: %1</translation>
    </message>
    <message>
        <source>list the last 20 commits of the user&apos;s files (by the
dialogs&apos; OK, set, apply, restore, heal): number,
time, program, what, keys changed, who, run; show N:
that entry with each key&apos;s old and new value</source>
        <translation>elenca gli ultimi 20 salvataggi dei file dell&apos;utente
(dall&apos;OK delle finestre, set, apply, restore, heal):
numero, ora, programma, azione, chiavi cambiate, chi,
esecuzione; show N: quella voce con il valore
vecchio e nuovo di ogni chiave</translation>
    </message>
    <message>
        <source>restore: every prefix back to before that run of
the tool (its id in the history)</source>
        <translation>restore: ogni prefisso riportato a prima di quella
esecuzione (il suo identificativo nella cronologia)</translation>
    </message>
    <message>
        <source>history takes no argument, or show N</source>
        <translation>history non accetta argomenti, oppure show N</translation>
    </message>
    <message>
        <source>%1: commit %2 (%3) came after run %4; restore it first</source>
        <translation>%1: il salvataggio %2 (%3) è venuto dopo l&apos;esecuzione %4; ripristinate prima quello</translation>
    </message>
    <message>
        <source>restore takes at most one entry number, or --run ID</source>
        <translation>restore accetta al massimo un numero di voce, oppure --run ID</translation>
    </message>
    <message>
        <source>list every key of both dialogs: dialog, key, Lisp
name, type, default, choices, office value, meaning</source>
        <translation>elenca ogni chiave delle due finestre: finestra,
chiave, nome Lisp, tipo, predefinito, scelte, valore
dell&apos;ufficio, significato</translation>
    </message>
    <message>
        <source>keys takes no argument</source>
        <translation>keys non accetta argomenti</translation>
    </message>
    <message>
        <source>print each stored value, else the office&apos;s or the
default (all keys when none is given), as KEY=VALUE
lines</source>
        <translation>mostra ogni valore salvato, altrimenti quello
dell&apos;ufficio o il predefinito (tutte le chiavi se
non ne è indicata nessuna), come righe KEY=VALUE</translation>
    </message>
    <message>
        <source>check each value as its field does, then write both
files as the dialog&apos;s OK does; keys not given keep
their stored values</source>
        <translation>controlla ogni valore come fa il suo campo, poi scrive
entrambi i file come l&apos;OK della finestra; le chiavi non
indicate mantengono il loro valore salvato</translation>
    </message>
    <message>
        <source>bring back both files as they were before the last
commit, before commit N of the history, or with
--run ID before that run; recorded in the history</source>
        <translation>riporta entrambi i file com&apos;erano prima dell&apos;ultimo
salvataggio, prima del salvataggio N della cronologia
o, con --run ID, prima di quella esecuzione;
registrato nella cronologia</translation>
    </message>
    <message>
        <source>get, keys, history, set, apply, restore, heal: print
one JSON document (set, apply, restore, heal: per
prefix the user, changed, keys with old and new
values, files, error)</source>
        <translation>get, keys, history, set, apply, restore, heal: stampa
un unico documento JSON (set, apply, restore, heal:
per prefisso l&apos;utente, changed, le chiavi con valori
vecchi e nuovi, i file, error)</translation>
    </message>
</context>
<context>
    <name>StartProblems</name>
    <message>
        <source>The file %1 cannot be read: %2. The dialog shows the default values, and OK will fail until the file is put right.</source>
        <translation>Il file %1 non può essere letto: %2. La finestra mostra i valori predefiniti, e OK non riuscirà finché il file non sarà sistemato.</translation>
    </message>
    <message>
        <source>Another program kept the file %1 locked through the whole wait: %2. The dialog shows the file as it stands, and OK will fail while that program keeps it.</source>
        <translation>Un altro programma ha tenuto bloccato il file %1 per tutta l&apos;attesa: %2. La finestra mostra il file così com&apos;è, e OK non riuscirà finché quel programma lo terrà bloccato.</translation>
    </message>
    <message>
        <source>The lock of the file %1 cannot be had: %2. OK will fail: nothing can be saved.</source>
        <translation>Il blocco del file %1 non può essere ottenuto: %2. OK non riuscirà: non si può salvare nulla.</translation>
    </message>
    <message>
        <source>A save into the folder of %1 was cut off, and its journal was damaged: the journal was removed and the files were left as they stand. Check the values before you press OK.</source>
        <translation>Un salvataggio nella cartella di %1 è stato interrotto e il suo registro era danneggiato: il registro è stato rimosso e i file lasciati come sono. Controllate i valori prima di premere OK.</translation>
    </message>
    <message>
        <source>%1 The dialog shows your own values and the program&apos;s defaults.</source>
        <translation>%1 La finestra mostra i vostri valori e quelli predefiniti del programma.</translation>
    </message>
</context>
</TS>
