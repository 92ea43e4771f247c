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
        <source>The field "%1" holds a double quote ("), which the Lisp file cannot take. Remove it, then press OK again.</source>
        <translation>The field "%1" holds a double quote ("), which the Lisp file cannot take. Remove it, then press OK again.</translation>
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
</context>
<context>
    <name>History</name>
    <message>
        <source>no record of a commit</source>
        <translation>no record of a commit</translation>
    </message>
    <message>
        <source>"%1" names no file of the user's folder</source>
        <translation>"%1" names no file of the user's folder</translation>
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
</context>
</TS>