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
        <source>The field &quot;%1&quot; holds a double quote (&quot;), which the Lisp file cannot take. Remove it, then press OK again.</source>
        <translation>Le champ « %1 » contient un guillemet (&quot;), que le fichier Lisp ne peut pas recevoir. Retirez-le, puis validez à nouveau.</translation>
    </message>
    <message>
        <source>The file %1 could not be written: %2.</source>
        <translation>Le fichier %1 n&apos;a pas pu être écrit : %2.</translation>
    </message>
    <message>
        <source>No file was changed.</source>
        <translation>Aucun fichier n&apos;a été modifié.</translation>
    </message>
</context>
<context>
    <name>Failure</name>
    <message>
        <source>the system refused it</source>
        <translation>le système l&apos;a refusé</translation>
    </message>
    <message>
        <source>no room is left on the disk</source>
        <translation>il n&apos;y a plus de place sur le disque</translation>
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
        <translation>vous n&apos;avez pas le droit de le faire à cet endroit</translation>
    </message>
    <message>
        <source>the file would pass the size limit set for this program</source>
        <translation>le fichier dépasserait la taille maximale permise à ce programme</translation>
    </message>
    <message>
        <source>the file does not exist</source>
        <translation>le fichier n&apos;existe pas</translation>
    </message>
    <message>
        <source>the file is too large to be read (at most %1 bytes are read)</source>
        <translation>le fichier est trop grand pour être lu (%1 octets au plus sont lus)</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>ce n&apos;est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>a folder stands where the file should be</source>
        <translation>un dossier se trouve à la place du fichier</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>le dossier %1 n&apos;existe pas</translation>
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
        <translation>impossible d&apos;agir en propriétaire du préfixe (utilisateur %1)</translation>
    </message>
    <message>
        <source>a file of the commit cannot be read, so it could not be put back</source>
        <translation>un fichier de l&apos;enregistrement est illisible et n&apos;aurait pas pu être rétabli</translation>
    </message>
    <message>
        <source>the files of one commit must share a folder</source>
        <translation>les fichiers d&apos;un même enregistrement doivent être dans un même dossier</translation>
    </message>
    <message>
        <source>another program holds the lock</source>
        <translation>un autre programme détient le verrou</translation>
    </message>
    <message>
        <source>process %1 holds the lock</source>
        <translation>le processus %1 détient le verrou</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>no record of a commit</source>
        <translation>aucune trace d&apos;un enregistrement</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no file of the user&apos;s folder</source>
        <translation>« %1 » ne désigne aucun fichier du dossier de l&apos;utilisateur</translation>
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
        <translation>l&apos;entrée %1 est endommagée (%2)</translation>
    </message>
</context>
<context>
    <name>KeyMeaning</name>
    <message>
        <source>width of the user-sized frame, mm</source>
        <translation>largeur du cadre à la taille de l&apos;utilisateur, en mm</translation>
    </message>
    <message>
        <source>length of the user-sized frame, mm</source>
        <translation>longueur du cadre à la taille de l&apos;utilisateur, en mm</translation>
    </message>
    <message>
        <source>colour number of the double frame</source>
        <translation>numéro de couleur du double cadre</translation>
    </message>
    <message>
        <source>offset of the double frame, mm on paper</source>
        <translation>décalage du double cadre, en mm sur le papier</translation>
    </message>
    <message>
        <source>layer name of the frame</source>
        <translation>nom du calque du cadre</translation>
    </message>
    <message>
        <source>default unit in model space: 0 mm, 1 cm, 2 m</source>
        <translation>unité par défaut dans l&apos;espace objet : 0 mm, 1 cm, 2 m</translation>
    </message>
    <message>
        <source>default unit in paper space: 0 mm, 1 cm, 2 m</source>
        <translation>unité par défaut dans l&apos;espace papier : 0 mm, 1 cm, 2 m</translation>
    </message>
    <message>
        <source>slant of the text styles, degrees</source>
        <translation>inclinaison des styles de texte, en degrés</translation>
    </message>
    <message>
        <source>compression of the text styles</source>
        <translation>compression des styles de texte</translation>
    </message>
    <message>
        <source>height of style GC1, mm on paper</source>
        <translation>hauteur du style GC1, en mm sur le papier</translation>
    </message>
    <message>
        <source>height of style GC2</source>
        <translation>hauteur du style GC2</translation>
    </message>
    <message>
        <source>height of style GC3</source>
        <translation>hauteur du style GC3</translation>
    </message>
    <message>
        <source>height of style GC4</source>
        <translation>hauteur du style GC4</translation>
    </message>
    <message>
        <source>height of style GC5</source>
        <translation>hauteur du style GC5</translation>
    </message>
    <message>
        <source>height of style GC7</source>
        <translation>hauteur du style GC7</translation>
    </message>
    <message>
        <source>height of style GC10</source>
        <translation>hauteur du style GC10</translation>
    </message>
    <message>
        <source>height of style GC15</source>
        <translation>hauteur du style GC15</translation>
    </message>
    <message>
        <source>text height of the dimension style GCC</source>
        <translation>hauteur de texte du style de cote GCC</translation>
    </message>
    <message>
        <source>colour of the dimension style GCC</source>
        <translation>couleur du style de cote GCC</translation>
    </message>
    <message>
        <source>layer to use after the command: 0 the GC layers, 1 the current layer</source>
        <translation>calque à utiliser après la commande : 0 les calques GC, 1 le calque courant</translation>
    </message>
    <message>
        <source>name of the office</source>
        <translation>nom du bureau</translation>
    </message>
    <message>
        <source>address of the office</source>
        <translation>adresse du bureau</translation>
    </message>
    <message>
        <source>postal code of the office</source>
        <translation>code postal du bureau</translation>
    </message>
    <message>
        <source>town of the office</source>
        <translation>ville du bureau</translation>
    </message>
    <message>
        <source>telephone number of the office</source>
        <translation>numéro de téléphone du bureau</translation>
    </message>
    <message>
        <source>fax number of the office</source>
        <translation>numéro de fax du bureau</translation>
    </message>
    <message>
        <source>font of style GC1</source>
        <translation>police du style GC1</translation>
    </message>
    <message>
        <source>font of style GC2</source>
        <translation>police du style GC2</translation>
    </message>
    <message>
        <source>font of style GC3</source>
        <translation>police du style GC3</translation>
    </message>
    <message>
        <source>font of style GC4</source>
        <translation>police du style GC4</translation>
    </message>
    <message>
        <source>font of style GC5</source>
        <translation>police du style GC5</translation>
    </message>
    <message>
        <source>font of style GC7</source>
        <translation>police du style GC7</translation>
    </message>
    <message>
        <source>font of style GC10</source>
        <translation>police du style GC10</translation>
    </message>
    <message>
        <source>font of style GC15</source>
        <translation>police du style GC15</translation>
    </message>
    <message>
        <source>font of the dimension style</source>
        <translation>police du style de cote</translation>
    </message>
    <message>
        <source>AutoCAD command after a style is chosen: 0 none, 1 one-line text, 2 dynamic text, 3 paragraph text</source>
        <translation>commande AutoCAD après le choix d&apos;un style : 0 aucune, 1 texte sur une ligne, 2 texte dynamique, 3 texte multiligne</translation>
    </message>
    <message>
        <source>language of the add-on: FRA, ENG, DEU, ITA</source>
        <translation>langue du module : FRA, ENG, DEU, ITA</translation>
    </message>
    <message>
        <source>show the add-on&apos;s logo while modules load</source>
        <translation>afficher le logo du module pendant le chargement des modules</translation>
    </message>
    <message>
        <source>show the user profile of the drawing</source>
        <translation>afficher le profil utilisateur du dessin</translation>
    </message>
    <message>
        <source>default colour of Zmult 1:10</source>
        <translation>couleur par défaut de Zmult 1:10</translation>
    </message>
    <message>
        <source>default colour of Zmult 1:20</source>
        <translation>couleur par défaut de Zmult 1:20</translation>
    </message>
    <message>
        <source>default colour of Zmult 1:50</source>
        <translation>couleur par défaut de Zmult 1:50</translation>
    </message>
    <message>
        <source>default colour of Zmult 1:100</source>
        <translation>couleur par défaut de Zmult 1:100</translation>
    </message>
    <message>
        <source>default colour of Zmult 1:200</source>
        <translation>couleur par défaut de Zmult 1:200</translation>
    </message>
    <message>
        <source>default colour of Zmult 1:500</source>
        <translation>couleur par défaut de Zmult 1:500</translation>
    </message>
    <message>
        <source>path of the Windows explorer</source>
        <translation>emplacement de l&apos;explorateur Windows</translation>
    </message>
    <message>
        <source>path of the calculator</source>
        <translation>emplacement de la calculatrice</translation>
    </message>
    <message>
        <source>path of the WordPad editor</source>
        <translation>emplacement de l&apos;éditeur WordPad</translation>
    </message>
    <message>
        <source>path of the notepad</source>
        <translation>emplacement du bloc-notes</translation>
    </message>
    <message>
        <source>path of Acrobat Reader</source>
        <translation>emplacement d&apos;Acrobat Reader</translation>
    </message>
    <message>
        <source>path of a personal program</source>
        <translation>emplacement d&apos;un programme personnel</translation>
    </message>
    <message>
        <source>drawing of the result: polyligne (a polyline) or points</source>
        <translation>dessin du résultat : polyligne ou points</translation>
    </message>
    <message>
        <source>drawing of the slope: 2 (2D) or 3 (3D)</source>
        <translation>dessin du talus : 2 (2D) ou 3 (3D)</translation>
    </message>
    <message>
        <source>horizontal distance of the slope</source>
        <translation>distance horizontale du talus</translation>
    </message>
    <message>
        <source>vertical distance of the slope</source>
        <translation>distance verticale du talus</translation>
    </message>
    <message>
        <source>initial search length, m</source>
        <translation>longueur initiale de recherche, en m</translation>
    </message>
    <message>
        <source>number of searches over 360 degrees</source>
        <translation>nombre de recherches sur 360 degrés</translation>
    </message>
    <message>
        <source>spacing between the searches</source>
        <translation>écart entre les recherches</translation>
    </message>
    <message>
        <source>scale factor of the direction arrows</source>
        <translation>facteur d&apos;échelle des flèches de direction</translation>
    </message>
</context>
<context>
    <name>OfficeStandard</name>
    <message>
        <source>The office standard (%1) fixes this value.</source>
        <translation>Le standard du bureau (%1) fixe cette valeur.</translation>
    </message>
    <message>
        <source>%1 is no key of Brimo&apos;s settings</source>
        <translation>%1 n&apos;est pas une clé des réglages de Brimo</translation>
    </message>
    <message>
        <source>%1=%2: a locked key takes 1, an unlocked one 0</source>
        <translation>%1=%2 : une clé verrouillée prend 1, une clé libre 0</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, ligne %2</translation>
    </message>
    <message>
        <source>%1: %2; the office standard is ignored</source>
        <translation>%1 : %2 ; le standard du bureau est ignoré</translation>
    </message>
</context>
<context>
    <name>SettingValue</name>
    <message>
        <source>%1: the value holds a line break or another control character</source>
        <translation>%1 : la valeur contient un saut de ligne ou un autre caractère de contrôle</translation>
    </message>
    <message>
        <source>%1: %2 is none of %3</source>
        <translation>%1 : %2 n&apos;est aucune des valeurs %3</translation>
    </message>
    <message>
        <source>%1: %2 is no number</source>
        <translation>%1 : %2 n&apos;est pas un nombre</translation>
    </message>
    <message>
        <source>%1: %2 holds a double quote, which would end its Lisp string</source>
        <translation>%1 : %2 contient un guillemet droit, qui terminerait sa chaîne Lisp</translation>
    </message>
</context>
<context>
    <name>SettingsText</name>
    <message>
        <source>write what each dialog&apos;s OK would write for the user
(both sections) to a profile file; FILE &quot;-&quot; is the
standard output</source>
        <translation>écrit dans un fichier de profil ce que l&apos;OK de chaque
boîte de dialogue écrirait pour l&apos;utilisateur (les
deux sections) ; FILE « - » est la sortie standard</translation>
    </message>
    <message>
        <source>set the keys of [Brimo_Gene] and [Brimo_Talus] of a
profile file; FILE &quot;-&quot; is the standard input</source>
        <translation>règle les clés de [Brimo_Gene] et [Brimo_Talus] d&apos;un
fichier de profil ; FILE « - » est l&apos;entrée standard</translation>
    </message>
    <message>
        <source>this text, or the usage of one command</source>
        <translation>ce texte, ou l&apos;usage d&apos;une commande</translation>
    </message>
    <message>
        <source>the version</source>
        <translation>la version</translation>
    </message>
    <message>
        <source>Usage: brimo-settings COMMAND [OPTION...] [ARGUMENT...]

Reads and writes the settings of the Zorel add-on&apos;s variable editor (Brimo)
as its dialogs do: the values of section Brimo_Gene (general dialog) or
Brimo_Talus (slope dialog) of the user&apos;s Brimo.ini, and the Lisp files.
</source>
        <translation>Usage : brimo-settings COMMAND [OPTION...] [ARGUMENT...]

Lit et écrit les réglages de l&apos;éditeur de variables du module Zorel (Brimo)
comme le font ses boîtes de dialogue : les valeurs de la section Brimo_Gene
(boîte générale) ou Brimo_Talus (boîte des talus) du Brimo.ini de
l&apos;utilisateur, et les fichiers Lisp.
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
        <translation>Code de sortie :
  0  fait, que quelque chose ait changé ou non
  2  refusé : option incorrecte, clé inconnue, valeur qui n&apos;est pas un
     nombre, valeur hors de ses choix, guillemet droit ou caractère de
     contrôle dans un texte ; rien n&apos;a été écrit
  3  un préfixe a échoué (signalé) ; les autres préfixes ont continué
Avec --detailed-exitcodes (la convention de Puppet) :
  0  fait, rien n&apos;a changé (avec --check : rien ne changerait)
  1  refusé, rien n&apos;a été tenté
  2  fait, des fichiers ont changé (avec --check : changeraient)
  4  un préfixe a échoué, rien n&apos;a changé ailleurs
  6  un préfixe a échoué, et un autre a changé

Voir brimo-settings(1).
</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Commandes :</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Options :</translation>
    </message>
    <message>
        <source>Options take their value as &quot;--opt value&quot; or &quot;--opt=value&quot;; &quot;--&quot; ends them.</source>
        <translation>Les options prennent leur valeur sous la forme « --opt valeur » ou
« --opt=valeur » ; « -- » les termine.</translation>
    </message>
    <message>
        <source>%1: no such command</source>
        <translation>%1 : commande inconnue</translation>
    </message>
    <message>
        <source>Usage: brimo-settings %1 [OPTION...]</source>
        <translation>Usage : brimo-settings %1 [OPTION...]</translation>
    </message>
    <message>
        <source>%1: not KEY=VALUE</source>
        <translation>%1 : n&apos;est pas de la forme KEY=VALUE</translation>
    </message>
    <message>
        <source>%1: no key of the %2 settings</source>
        <translation>%1 : n&apos;est pas une clé des réglages « %2 »</translation>
    </message>
    <message>
        <source>%1: characters that Windows-1252 lacks are written as ?, as the dialog writes them: %2</source>
        <translation>%1 : les caractères absents de Windows-1252 sont écrits « ? », comme les écrit la boîte de dialogue : %2</translation>
    </message>
    <message>
        <source>--prefixes-from %1: cannot be read</source>
        <translation>--prefixes-from %1 : illisible</translation>
    </message>
    <message>
        <source>the dialog whose keys get and set use (general)</source>
        <translation>la boîte de dialogue dont get et set
utilisent les clés (general)</translation>
    </message>
    <message>
        <source>exit statuses as Puppet&apos;s option of that name</source>
        <translation>codes de sortie comme l&apos;option homonyme de
Puppet</translation>
    </message>
    <message>
        <source>a Wine prefix in place of $WINEPREFIX (repeatable)</source>
        <translation>un préfixe Wine à la place de $WINEPREFIX
(répétable)</translation>
    </message>
    <message>
        <source>prefixes from FILE, one a line (&apos;#&apos; starts a comment)</source>
        <translation>les préfixes de FILE, un par ligne (« # » ouvre
un commentaire)</translation>
    </message>
    <message>
        <source>the user in place of [Users] actuel of zorel.ini</source>
        <translation>l&apos;utilisateur à la place de [Users] actuel de
zorel.ini</translation>
    </message>
    <message>
        <source>this text</source>
        <translation>ce texte</translation>
    </message>
    <message>
        <source>this text and every option as Qt lists them</source>
        <translation>ce texte et toutes les options telles que Qt
les liste</translation>
    </message>
    <message>
        <source>The settings of Brimo&apos;s dialogs from the command line.</source>
        <translation>Les réglages des boîtes de dialogue de Brimo en ligne de commande.</translation>
    </message>
    <message>
        <source>KEY, KEY=VALUE, FILE, N or COMMAND</source>
        <translation>KEY, KEY=VALUE, FILE, N ou COMMAND</translation>
    </message>
    <message>
        <source>--dialog %1: general or slope</source>
        <translation>--dialog %1 : general ou slope</translation>
    </message>
    <message>
        <source>no such folder</source>
        <translation>ce dossier n&apos;existe pas</translation>
    </message>
    <message>
        <source>%1: %2; give the key a value</source>
        <translation>%1 : %2 ; donnez une valeur à la clé</translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation> et %1 autres</translation>
    </message>
    <message>
        <source>export takes one FILE, and at most one --prefix</source>
        <translation>export prend un seul FILE et au plus un --prefix</translation>
    </message>
    <message>
        <source>%1: %2: the stored text of %3 characters is cut to 254, as the dialog reads it</source>
        <translation>%1 : %2 : le texte enregistré de %3 caractères est coupé à 254, comme le lit la boîte de dialogue</translation>
    </message>
    <message>
        <source>%1: the stored text holds a double quote, which would end its Lisp string; give the key a value</source>
        <translation>%1 : le texte enregistré contient un guillemet droit, qui terminerait sa chaîne Lisp ; donnez une valeur à la clé</translation>
    </message>
    <message>
        <source>apply takes one FILE</source>
        <translation>apply prend un seul FILE</translation>
    </message>
    <message>
        <source>%1: cannot be read</source>
        <translation>%1 : illisible</translation>
    </message>
    <message>
        <source>%1: no key of [Brimo_Gene] or [Brimo_Talus]</source>
        <translation>%1 : aucune clé de [Brimo_Gene] ou [Brimo_Talus]</translation>
    </message>
    <message>
        <source>%1: already so</source>
        <translation>%1 : déjà ainsi</translation>
    </message>
    <message>
        <source>%1: would change</source>
        <translation>%1 : changerait</translation>
    </message>
    <message>
        <source>%1: changed</source>
        <translation>%1 : modifié</translation>
    </message>
    <message>
        <source>file %1</source>
        <translation>fichier %1</translation>
    </message>
    <message>
        <source>would change %1, already so %2, failed %3</source>
        <translation>changeraient %1, déjà ainsi %2, en échec %3</translation>
    </message>
    <message>
        <source>changed %1, already so %2, failed %3</source>
        <translation>modifiés %1, déjà ainsi %2, en échec %3</translation>
    </message>
    <message>
        <source>%1: no entry number</source>
        <translation>%1 : pas un numéro d&apos;entrée</translation>
    </message>
    <message>
        <source>set every key that the office standard gives or locks
to its value; with --check, report which users differ
from it, and in which keys</source>
        <translation>donne à chaque clé que le standard du bureau fixe ou
verrouille sa valeur ; avec --check, indique quels
utilisateurs s&apos;en écartent, et sur quelles clés</translation>
    </message>
    <message>
        <source>get: put &quot;stored&quot;, &quot;office&quot;, &quot;locked&quot; or &quot;default&quot;
and a tab in front</source>
        <translation>get : met « stored », « office », « locked » ou
« default » et une tabulation devant</translation>
    </message>
    <message>
        <source>set, apply, restore, heal: report what would
change, write nothing</source>
        <translation>set, apply, restore, heal : indique ce qui
changerait, n&apos;écrit rien</translation>
    </message>
    <message>
        <source>%1: the office standard %2 locks it at &quot;%3&quot;</source>
        <translation>%1 : le standard du bureau %2 la verrouille à « %3 »</translation>
    </message>
    <message>
        <source>heal takes no argument</source>
        <translation>heal ne prend aucun argument</translation>
    </message>
    <message>
        <source>%1: no office standard to heal to</source>
        <translation>%1 : aucun standard du bureau auquel se conformer</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; holds &quot;%3&quot;, which this locale&apos;s numbers do not take for their decimal symbol (&quot;%4&quot;); the add-on receives %2 as written</source>
        <translation>%1 : « %2 » contient « %3 », que les nombres de cette langue ne prennent pas pour séparateur décimal (« %4 ») ; le module reçoit %2 tel quel</translation>
    </message>
    <message>
        <source>get: print the bare value of one key</source>
        <translation>get : affiche la seule valeur d&apos;une clé</translation>
    </message>
    <message>
        <source>no command</source>
        <translation>aucune commande</translation>
    </message>
    <message>
        <source>get --value takes one KEY</source>
        <translation>get --value prend une seule KEY</translation>
    </message>
    <message>
        <source>keys written out as the dialog shows them, none being stored: %1</source>
        <translation>clés écrites telles que la boîte de dialogue les affiche, aucune n&apos;étant enregistrée : %1</translation>
    </message>
    <message>
        <source>list the last 20 commits of the user&apos;s files (by the
dialogs&apos; OK, set, apply, restore, heal): number,
time, program, what, keys changed, who, run; show N:
that entry with each key&apos;s old and new value</source>
        <translation>liste les 20 derniers enregistrements des fichiers de
l&apos;utilisateur (par l&apos;OK des boîtes de dialogue, set,
apply, restore, heal) : numéro, heure, programme,
action, clés modifiées, qui, passage ; show N :
cette entrée avec l&apos;ancienne et la nouvelle valeur
de chaque clé</translation>
    </message>
    <message>
        <source>restore: every prefix back to before that run of
the tool (its id in the history)</source>
        <translation>restore : chaque préfixe ramené à avant ce passage
du programme (son identifiant dans l&apos;historique)</translation>
    </message>
    <message>
        <source>history takes no argument, or show N</source>
        <translation>history ne prend aucun argument, ou show N</translation>
    </message>
    <message>
        <source>%1: commit %2 (%3) came after run %4; restore it first</source>
        <translation>%1 : l&apos;enregistrement %2 (%3) a suivi le passage %4 ; rétablissez-le d&apos;abord</translation>
    </message>
    <message>
        <source>restore takes at most one entry number, or --run ID</source>
        <translation>restore prend au plus un numéro d&apos;entrée, ou --run ID</translation>
    </message>
    <message>
        <source>list every key of both dialogs: dialog, key, Lisp
name, type, default, choices, office value, meaning</source>
        <translation>liste chaque clé des deux boîtes de dialogue : boîte,
clé, nom Lisp, type, défaut, choix, valeur du bureau,
sens</translation>
    </message>
    <message>
        <source>keys takes no argument</source>
        <translation>keys ne prend aucun argument</translation>
    </message>
    <message>
        <source>print each stored value, else the office&apos;s or the
default (all keys when none is given), as KEY=VALUE
lines</source>
        <translation>affiche chaque valeur enregistrée, sinon celle du
bureau ou celle par défaut (toutes les clés si aucune
n&apos;est donnée), en lignes KEY=VALUE</translation>
    </message>
    <message>
        <source>check each value as its field does, then write both
files as the dialog&apos;s OK does; keys not given keep
their stored values</source>
        <translation>vérifie chaque valeur comme le fait son champ, puis
écrit les deux fichiers comme l&apos;OK de la boîte de
dialogue ; les clés non données gardent leur valeur
enregistrée</translation>
    </message>
    <message>
        <source>bring back both files as they were before the last
commit, before commit N of the history, or with
--run ID before that run; recorded in the history</source>
        <translation>rétablit les deux fichiers tels qu&apos;ils étaient avant
le dernier enregistrement, avant l&apos;enregistrement N
de l&apos;historique, ou avec --run ID avant ce passage ;
inscrit dans l&apos;historique</translation>
    </message>
    <message>
        <source>get, keys, history, set, apply, restore, heal: print
one JSON document (set, apply, restore, heal: per
prefix the user, changed, keys with old and new
values, files, error)</source>
        <translation>get, keys, history, set, apply, restore, heal : affiche
un seul document JSON (set, apply, restore, heal : par
préfixe l&apos;utilisateur, changed, les clés avec
anciennes et nouvelles valeurs, les fichiers, error)</translation>
    </message>
</context>
<context>
    <name>StartProblems</name>
    <message>
        <source>The file %1 cannot be read: %2. The dialog shows the default values, and OK will fail until the file is put right.</source>
        <translation>Le fichier %1 ne peut pas être lu : %2. La fenêtre affiche les valeurs par défaut, et la validation échouera tant que le fichier n&apos;aura pas été réparé.</translation>
    </message>
    <message>
        <source>Another program kept the file %1 locked through the whole wait: %2. The dialog shows the file as it stands, and OK will fail while that program keeps it.</source>
        <translation>Un autre programme a gardé le fichier %1 verrouillé pendant toute l&apos;attente : %2. La fenêtre affiche le fichier tel qu&apos;il est, et la validation échouera tant que ce programme le gardera.</translation>
    </message>
    <message>
        <source>The lock of the file %1 cannot be had: %2. OK will fail: nothing can be saved.</source>
        <translation>Le verrou du fichier %1 ne peut pas être obtenu : %2. La validation échouera : rien ne peut être enregistré.</translation>
    </message>
    <message>
        <source>A save into the folder of %1 was cut off, and its journal was damaged: the journal was removed and the files were left as they stand. Check the values before you press OK.</source>
        <translation>Un enregistrement dans le dossier de %1 a été interrompu et son journal était endommagé : le journal a été supprimé et les fichiers laissés tels quels. Vérifiez les valeurs avant de valider.</translation>
    </message>
    <message>
        <source>%1 The dialog shows your own values and the program&apos;s defaults.</source>
        <translation>%1 La boîte de dialogue affiche vos propres valeurs et celles par défaut du programme.</translation>
    </message>
</context>
</TS>
