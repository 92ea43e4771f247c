<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>CommitFailureReport</name>
    <message>
        <source>The window stays open: press OK again in a moment.</source>
        <translation>La fenêtre reste ouverte : validez à nouveau dans un instant.</translation>
    </message>
    <message>
        <source>The field "%1" holds a double quote ("), which the Lisp file cannot take. Remove it, then press OK again.</source>
        <translation>Le champ « %1 » contient un guillemet ("), que le fichier Lisp ne peut pas recevoir. Retirez-le, puis validez à nouveau.</translation>
    </message>
    <message>
        <source>The file %1 could not be written: %2.</source>
        <translation>Le fichier %1 n'a pas pu être écrit : %2.</translation>
    </message>
    <message>
        <source>No file was changed.</source>
        <translation>Aucun fichier n'a été modifié.</translation>
    </message>
</context>
<context>
    <name>Failure</name>
    <message>
        <source>the system refused it</source>
        <translation>le système l'a refusé</translation>
    </message>
    <message>
        <source>no room is left on the disk</source>
        <translation>il n'y a plus de place sur le disque</translation>
    </message>
    <message>
        <source>the disk can only be read</source>
        <translation>le disque est en lecture seule</translation>
    </message>
    <message>
        <source>the file is read-only</source>
        <translation>le fichier est en lecture seule</translation>
    </message>
    <message>
        <source>you have no right to do this here</source>
        <translation>vous n'avez pas le droit de le faire à cet endroit</translation>
    </message>
    <message>
        <source>the file would pass the size limit set for this program</source>
        <translation>le fichier dépasserait la taille maximale permise à ce programme</translation>
    </message>
    <message>
        <source>the file does not exist</source>
        <translation>le fichier n'existe pas</translation>
    </message>
    <message>
        <source>the file is too large to be read (at most %1 bytes are read)</source>
        <translation>le fichier est trop grand pour être lu (%1 octets au plus sont lus)</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>ce n'est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>a folder stands where the file should be</source>
        <translation>un dossier se trouve à la place du fichier</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>le dossier %1 n'existe pas</translation>
    </message>
    <message>
        <source>the path names no folder on this machine</source>
        <translation>le chemin ne désigne aucun dossier de cette machine</translation>
    </message>
    <message>
        <source>too many levels of symbolic links</source>
        <translation>trop de liens symboliques se suivent</translation>
    </message>
    <message>
        <source>process %1 (%2) holds the lock</source>
        <translation>le processus %1 (%2) détient le verrou</translation>
    </message>
    <message>
        <source>the lock %1 cannot be used</source>
        <translation>le verrou %1 est inutilisable</translation>
    </message>
    <message>
        <source>cannot act as the owner of the prefix (user %1)</source>
        <translation>impossible d'agir en propriétaire du préfixe (utilisateur %1)</translation>
    </message>
    <message>
        <source>a file of the commit cannot be read, so it could not be put back</source>
        <translation>un fichier de l'enregistrement est illisible et n'aurait pas pu être rétabli</translation>
    </message>
    <message>
        <source>the files of one commit must share a folder</source>
        <translation>les fichiers d'un même enregistrement doivent être dans un même dossier</translation>
    </message>
    <message>
        <source>another program holds the lock</source>
        <translation>un autre programme détient le verrou</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>no record of a commit</source>
        <translation>aucune trace d'un enregistrement</translation>
    </message>
    <message>
        <source>"%1" names no file of the user's folder</source>
        <translation>« %1 » ne désigne aucun fichier du dossier de l'utilisateur</translation>
    </message>
    <message>
        <source>no entry %1</source>
        <translation>aucune entrée %1</translation>
    </message>
    <message>
        <source>no entry</source>
        <translation>aucune entrée</translation>
    </message>
    <message>
        <source>entry %1 is damaged (%2)</source>
        <translation>l'entrée %1 est endommagée (%2)</translation>
    </message>
</context>
<context>
    <name>StartProblems</name>
    <message>
        <source>The file %1 cannot be read: %2. The dialog shows the default values, and OK will fail until the file is put right.</source>
        <translation>Le fichier %1 ne peut pas être lu : %2. La fenêtre affiche les valeurs par défaut, et la validation échouera tant que le fichier n'aura pas été réparé.</translation>
    </message>
    <message>
        <source>Another program kept the file %1 locked through the whole wait: %2. The dialog shows the file as it stands, and OK will fail while that program keeps it.</source>
        <translation>Un autre programme a gardé le fichier %1 verrouillé pendant toute l'attente : %2. La fenêtre affiche le fichier tel qu'il est, et la validation échouera tant que ce programme le gardera.</translation>
    </message>
    <message>
        <source>The lock of the file %1 cannot be had: %2. OK will fail: nothing can be saved.</source>
        <translation>Le verrou du fichier %1 ne peut pas être obtenu : %2. La validation échouera : rien ne peut être enregistré.</translation>
    </message>
    <message>
        <source>A save into the folder of %1 was cut off, and its journal was damaged: the journal was removed and the files were left as they stand. Check the values before you press OK.</source>
        <translation>Un enregistrement dans le dossier de %1 a été interrompu et son journal était endommagé : le journal a été supprimé et les fichiers laissés tels quels. Vérifiez les valeurs avant de valider.</translation>
    </message>
</context>
</TS>