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
        <source>The field "%1" holds a double quote ("), which the Lisp file cannot take. Remove it, then press OK again.</source>
        <translation>Il campo «%1» contiene un doppio apice ("), che il file Lisp non può accogliere. Toglietelo, poi premete di nuovo OK.</translation>
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
        <translation>il sistema l'ha rifiutato</translation>
    </message>
    <message>
        <source>no room is left on the disk</source>
        <translation>non c'è più spazio sul disco</translation>
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
        <translation>al posto del file c'è una cartella</translation>
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
</context>
<context>
    <name>History</name>
    <message>
        <source>no record of a commit</source>
        <translation>nessuna traccia di un salvataggio</translation>
    </message>
    <message>
        <source>"%1" names no file of the user's folder</source>
        <translation>«%1» non indica alcun file della cartella dell'utente</translation>
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
    <name>StartProblems</name>
    <message>
        <source>The file %1 cannot be read: %2. The dialog shows the default values, and OK will fail until the file is put right.</source>
        <translation>Il file %1 non può essere letto: %2. La finestra mostra i valori predefiniti, e OK non riuscirà finché il file non sarà sistemato.</translation>
    </message>
    <message>
        <source>Another program kept the file %1 locked through the whole wait: %2. The dialog shows the file as it stands, and OK will fail while that program keeps it.</source>
        <translation>Un altro programma ha tenuto bloccato il file %1 per tutta l'attesa: %2. La finestra mostra il file così com'è, e OK non riuscirà finché quel programma lo terrà bloccato.</translation>
    </message>
    <message>
        <source>The lock of the file %1 cannot be had: %2. OK will fail: nothing can be saved.</source>
        <translation>Il blocco del file %1 non può essere ottenuto: %2. OK non riuscirà: non si può salvare nulla.</translation>
    </message>
    <message>
        <source>A save into the folder of %1 was cut off, and its journal was damaged: the journal was removed and the files were left as they stand. Check the values before you press OK.</source>
        <translation>Un salvataggio nella cartella di %1 è stato interrotto e il suo registro era danneggiato: il registro è stato rimosso e i file lasciati come sono. Controllate i valori prima di premere OK.</translation>
    </message>
</context>
</TS>