<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB" sourcelanguage="fr">
<context>
    <name>AdventureCommands</name>
    <message>
        <source>Fichiers Usmira (*.usm)|*.usm</source>
        <translation>Usmira files (*.usm)|*.usm</translation>
    </message>
    <message>
        <source>ATTENTION : Vous n&apos;avez pas enregistré l&apos;aventure %1. Voulez-vous le faire? Sinon, vous perdrez tous les changements!</source>
        <translation>WARNING: You have not saved the adventure %1. Do you want to save it? Otherwise you will lose all your changes!</translation>
    </message>
    <message>
        <source>Rappel amical</source>
        <translation>Friendly Reminder</translation>
    </message>
    <message>
        <source>Nouvelle Aventure</source>
        <translation>New Adventure</translation>
    </message>
    <message>
        <source>Ouvrir une Aventure</source>
        <translation>Open an Adventure</translation>
    </message>
    <message>
        <source>Ouverture arrêtée.</source>
        <translation>Opening stopped.</translation>
    </message>
    <message>
        <source>L&apos;aventure %1 est déjà ouverte dans une autre fenêtre d&apos;Usmira. Voulez-vous en ouvrir une copie, %2 ? Sinon, vous pourrez la lire, mais pas l&apos;enregistrer tant que l&apos;autre fenêtre la tient.</source>
        <translation>The adventure %1 is already open in another window of Usmira. Do you want to open a copy of it, %2? Otherwise you can read it, but not save it as long as the other window holds it.</translation>
    </message>
    <message>
        <source>Songez-y</source>
        <translation>Think About It</translation>
    </message>
    <message>
        <source>Graphing...</source>
        <translation>Graphing...</translation>
    </message>
    <message>
        <source>Les départs, les remarques acceptées et les lectures gardés avec l&apos;aventure sont illisibles ; ils sont oubliés.</source>
        <translation>The starts, the accepted remarks and the readings kept with the adventure cannot be read; they are forgotten.</translation>
    </message>
    <message>
        <source>Saving...</source>
        <translation>Saving...</translation>
    </message>
</context>
<context>
    <name>AdventureCopy</name>
    <message>
        <source>Enregistrer une Copie Sous</source>
        <translation>Save a Copy As</translation>
    </message>
    <message>
        <source>Fichiers Usmira (*.usm)|*.usm</source>
        <translation>Usmira files (*.usm)|*.usm</translation>
    </message>
    <message>
        <source>%1 (copie)</source>
        <translation>%1 (copy)</translation>
    </message>
    <message>
        <source>Copie enregistrée : %1</source>
        <translation>Copy saved: %1</translation>
    </message>
    <message>
        <source>Paragraphes illisibles, absents de la copie : %1</source>
        <translation>Unreadable paragraphs, missing from the copy: %1</translation>
    </message>
</context>
<context>
    <name>AdventureMerge</name>
    <message>
        <source>Importation de %1</source>
        <translation>Import of %1</translation>
    </message>
    <message>
        <source>Paragraphes illisibles, remplacés : %1</source>
        <translation>Unreadable paragraphs, replaced: %1</translation>
    </message>
    <message>
        <source>Choisir une Aventure</source>
        <translation>Choose an Adventure</translation>
    </message>
    <message>
        <source>Fichiers Usmira (*.usm)|*.usm</source>
        <translation>Usmira files (*.usm)|*.usm</translation>
    </message>
    <message>
        <source>Fichier invalide. Opération annulée.</source>
        <translation>Invalid file. Operation cancelled.</translation>
    </message>
    <message>
        <source>BUG</source>
        <translation>BUG</translation>
    </message>
    <message>
        <source>Cette aventure ne contient aucun paragraphe.</source>
        <translation>This adventure contains no paragraph.</translation>
    </message>
    <message>
        <source>Niouf</source>
        <translation>Nope</translation>
    </message>
    <message>
        <source>ATTENTION : %1 paragraphes du fichier à importer ont les mêmes numéros que ceux du fichier actuel. Voulez-vous REMPLACER les paragraphes de l&apos;aventure actuelle par ceux de l&apos;aventure importée ?</source>
        <translation>WARNING: Paragraphs of the file to import whose numbers are those of paragraphs of the current file: %1. Do you want to REPLACE the paragraphs of the current adventure with those of the imported one?</translation>
    </message>
    <message>
        <source>Attention !</source>
        <translation>Warning!</translation>
    </message>
    <message>
        <source>aucun nouveau</source>
        <translation>no new one</translation>
    </message>
    <message numerus="yes">
        <source>%n nouveau(x)</source>
        <translation>
            <numerusform>%n new one</numerusform>
            <numerusform>%n new ones</numerusform>
        </translation>
    </message>
    <message>
        <source>Oui : %1 et %2. Non : %3.</source>
        <translation>Yes: %1 and %2. No: %3.</translation>
    </message>
    <message>
        <source>aucun paragraphe remplacé</source>
        <translation>no paragraph replaced</translation>
    </message>
    <message numerus="yes">
        <source>%n paragraphe(s) remplacé(s)</source>
        <translation>
            <numerusform>%n paragraph replaced</numerusform>
            <numerusform>%n paragraphs replaced</numerusform>
        </translation>
    </message>
    <message>
        <source>Importing...</source>
        <translation>Importing...</translation>
    </message>
    <message numerus="yes">
        <source>%n paragraphe(s) importé(s) : %1</source>
        <translation>
            <numerusform>%n paragraph imported: %1</numerusform>
            <numerusform>%n paragraphs imported: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Erreur lors de l&apos;importation des paragraphes.</source>
        <translation>Error while importing the paragraphs.</translation>
    </message>
    <message>
        <source>%1 : le paragraphe %2 est illisible.</source>
        <translation>%1: paragraph %2 cannot be read.</translation>
    </message>
</context>
<context>
    <name>AdventureSave</name>
    <message>
        <source>Fichier enregistré, incapable d&apos;échanger avec l&apos;original.</source>
        <translation>File saved, but it could not be exchanged with the original.</translation>
    </message>
    <message>
        <source>BUG</source>
        <translation>BUG</translation>
    </message>
    <message>
        <source>Paragraphes illisibles, non enregistrés : %1</source>
        <translation>Unreadable paragraphs, not saved: %1</translation>
    </message>
    <message>
        <source>Attention !</source>
        <translation>Warning!</translation>
    </message>
    <message>
        <source>Un autre programme a modifié l&apos;aventure %1 depuis son ouverture. Voulez-vous la remplacer par la vôtre ? L&apos;autre version sera gardée sous le nom %2.</source>
        <translation>Another program has changed the adventure %1 since it was opened. Do you want to replace it with yours? The other version will be kept under the name %2.</translation>
    </message>
    <message>
        <source>L&apos;aventure %1 est protégée en écriture. Voulez-vous la remplacer quand même ?</source>
        <translation>The adventure %1 is write-protected. Do you want to replace it all the same?</translation>
    </message>
    <message>
        <source>Le fichier de l&apos;aventure %1 porte aussi d&apos;autres noms. Voulez-vous l&apos;enregistrer sous ce nom seul ? Les autres garderont le texte d&apos;avant.</source>
        <translation>The file of the adventure %1 has other names as well. Do you want to save it under this name only? The others will keep the text of before.</translation>
    </message>
</context>
<context>
    <name>AdventureSplit</name>
    <message>
        <source>Nouvelle Aventure</source>
        <translation>New Adventure</translation>
    </message>
    <message>
        <source>Fichiers Usmira (*.usm)|*.usm</source>
        <translation>Usmira files (*.usm)|*.usm</translation>
    </message>
    <message>
        <source>Zut</source>
        <translation>Oops</translation>
    </message>
    <message>
        <source>Exportation...</source>
        <translation>Exporting...</translation>
    </message>
    <message numerus="yes">
        <source>%n paragraphe(s) exporté(s) : %1</source>
        <translation>
            <numerusform>%n paragraph exported: %1</numerusform>
            <numerusform>%n paragraphs exported: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Tous les paragraphes dans cet intervalle sont vides.</source>
        <translation>All the paragraphs in this range are empty.</translation>
    </message>
    <message>
        <source>Scission %1 à %2</source>
        <translation>Split %1 to %2</translation>
    </message>
</context>
<context>
    <name>BarChart</name>
    <message>
        <source>%1 à %2</source>
        <translation>%1 to %2</translation>
    </message>
    <message>
        <source>%1 %2 : %3 %4</source>
        <translation>%1 %2: %3 %4</translation>
    </message>
    <message>
        <source>Rien à montrer</source>
        <translation>Nothing to show</translation>
    </message>
</context>
<context>
    <name>Book</name>
    <message numerus="yes">
        <source>%n renvoi(s) mène(nt) à un paragraphe vide : %1.</source>
        <translation>
            <numerusform>%n reference leads to an empty paragraph: %1.</numerusform>
            <numerusform>%n references lead to an empty paragraph: %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n renvoi(s) mène(nt) à des paragraphes vides : %1.</source>
        <translation>
            <numerusform>%n reference leads to empty paragraphs: %1.</numerusform>
            <numerusform>%n references lead to empty paragraphs: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, par %2</source>
        <translation>%1, by %2</translation>
    </message>
    <message>
        <source>Sans titre</source>
        <translation>Untitled</translation>
    </message>
</context>
<context>
    <name>BookFonts</name>
    <message>
        <source>La police « %1 » manque : « %2 » la remplace.</source>
        <translation>The font “%1” is missing: “%2” stands for it.</translation>
    </message>
    <message>
        <source>Des lettres plus grandes que la page ont été réduites.</source>
        <translation>Letters larger than the page have been made smaller.</translation>
    </message>
</context>
<context>
    <name>BookLayout</name>
    <message>
        <source>Départ</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Hors d&apos;atteinte depuis le %1</source>
        <translation>Out of reach from %1</translation>
    </message>
</context>
<context>
    <name>BookPreview</name>
    <message>
        <source>Page %1 de %2</source>
        <translation>Page %1 of %2</translation>
    </message>
    <message>
        <source>Pages %1 et %2 de %3</source>
        <translation>Pages %1 and %2 of %3</translation>
    </message>
</context>
<context>
    <name>BookPrinting</name>
    <message>
        <source>Impression...</source>
        <translation>Printing...</translation>
    </message>
    <message>
        <source>L&apos;imprimante n&apos;a pas pu tout imprimer.</source>
        <translation>The printer could not print everything.</translation>
    </message>
</context>
<context>
    <name>BookTypesetter</name>
    <message>
        <source>Les mots ne sont pas coupés : le dictionnaire de césures manque (%1).</source>
        <translation>Words are not parted: the hyphenation dictionary is missing (%1).</translation>
    </message>
</context>
<context>
    <name>CheckBook</name>
    <message numerus="yes">
        <source>%n faute(s)</source>
        <translation>
            <numerusform>%n fault</numerusform>
            <numerusform>%n faults</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n remarque(s)</source>
        <translation>
            <numerusform>%n remark</numerusform>
            <numerusform>%n remarks</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CheckMenu</name>
    <message>
        <source>Ouvrir le Contrôle du Livre</source>
        <translation>Open the Book Check</translation>
    </message>
    <message>
        <source>Contrôle : %1</source>
        <translation>Check: %1</translation>
    </message>
    <message>
        <source>Correction...</source>
        <translation>Correcting...</translation>
    </message>
    <message numerus="yes">
        <source>Corriger %n renvoi(s)</source>
        <translation>
            <numerusform>Correct %n reference</numerusform>
            <numerusform>Correct %n references</numerusform>
        </translation>
    </message>
    <message>
        <source>Le texte a changé : rien n&apos;est corrigé.</source>
        <translation>The text has changed: nothing is corrected.</translation>
    </message>
</context>
<context>
    <name>CodeBox</name>
    <message>
        <source>Ouvrir Fichier Texte</source>
        <translation>Open Text File</translation>
    </message>
    <message>
        <source>Enregistrer Fichier Texte</source>
        <translation>Save Text File</translation>
    </message>
</context>
<context>
    <name>CommandHistory</name>
    <message>
        <source>%1 : fait.</source>
        <translation>%1: done.</translation>
    </message>
    <message>
        <source>Ctrl+Alt+Z l&apos;annule.</source>
        <translation>Ctrl+Alt+Z undoes it.</translation>
    </message>
    <message>
        <source>Cette commande ne pourra pas être annulée.</source>
        <translation>It will not be possible to undo this command.</translation>
    </message>
</context>
<context>
    <name>CommandRunner</name>
    <message>
        <source>Une action a échoué.</source>
        <translation>An action has failed.</translation>
    </message>
    <message>
        <source>%1 Ce qui était tapé a été mis à l&apos;abri.</source>
        <translation>%1 What was typed has been put in safety.</translation>
    </message>
</context>
<context>
    <name>CompileCommand</name>
    <message>
        <source>Conversion en Cours Veuillez Attendre</source>
        <translation>Conversion in Progress, Please Wait</translation>
    </message>
    <message>
        <source>Erreur d&apos;enregistrement du fichier</source>
        <translation>Error while saving the file</translation>
    </message>
</context>
<context>
    <name>CoverPicture</name>
    <message>
        <source>Aucune image</source>
        <translation>No picture</translation>
    </message>
    <message>
        <source>Choisir une Image</source>
        <translation>Choose a Picture</translation>
    </message>
    <message>
        <source>Images PNG et JPEG (*.png *.jpg *.jpeg)|*.png;*.jpg;*.jpeg</source>
        <translation>PNG and JPEG pictures (*.png *.jpg *.jpeg)|*.png;*.jpg;*.jpeg</translation>
    </message>
    <message>
        <source>Zut</source>
        <translation>Oops</translation>
    </message>
    <message>
        <source>Ce fichier n&apos;est pas une image PNG ou JPEG.</source>
        <translation>This file is no PNG or JPEG picture.</translation>
    </message>
    <message>
        <source>Cette image est trop grande : une couverture a 8 Mo et %1 points de côté au plus.</source>
        <translation>This picture is too large: a cover has 8 MB and %1 pixels to a side at most.</translation>
    </message>
    <message>
        <source>Cette image est abîmée ou incomplète.</source>
        <translation>This picture is damaged or incomplete.</translation>
    </message>
</context>
<context>
    <name>DamagedTexts</name>
    <message>
        <source>Paragraphes illisibles : %1</source>
        <translation>Unreadable paragraphs: %1</translation>
    </message>
    <message>
        <source>Leurs octets sont gardés à côté de l&apos;aventure.</source>
        <translation>Their bytes are kept beside the adventure.</translation>
    </message>
    <message>
        <source>Leurs fichiers de travail sont rangés dans le dossier %1.</source>
        <translation>Their working files have been put into the folder %1.</translation>
    </message>
    <message>
        <source>Les octets illisibles seront gardés dans le fichier %1.</source>
        <translation>The unreadable bytes will be kept in the file %1.</translation>
    </message>
    <message>
        <source>Son fichier de travail sera rangé dans le dossier %1.</source>
        <translation>Its working file will be put into the folder %1.</translation>
    </message>
    <message>
        <source>Le texte du paragraphe %1 est illisible. Le remplacer par le vôtre ?</source>
        <translation>The text of paragraph %1 cannot be read. Replace it with yours?</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Warning</translation>
    </message>
</context>
<context>
    <name>DatedCopies</name>
    <message>
        <source>illisible</source>
        <translation>unreadable</translation>
    </message>
    <message>
        <source>L&apos;aventure d&apos;avant n&apos;a pas pu être gardée dans Copies.</source>
        <translation>The adventure as it was could not be kept in Copies.</translation>
    </message>
</context>
<context>
    <name>DialogPrompts</name>
    <message>
        <source>&amp;Oui</source>
        <translation>&amp;Yes</translation>
    </message>
    <message>
        <source>&amp;Non</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>&amp;Annuler</source>
        <translation>&amp;Cancel</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>%1 existe déjà. Voulez-vous le remplacer ?</source>
        <translation>%1 already exists. Do you want to replace it?</translation>
    </message>
</context>
<context>
    <name>DiscardedChanges</name>
    <message>
        <source>L&apos;aventure %1 ne peut plus être relue. Les paragraphes non enregistrés sont rangés dans le dossier %2.</source>
        <translation>The adventure %1 can no longer be read. The unsaved paragraphs have been put into the folder %2.</translation>
    </message>
</context>
<context>
    <name>DoubtfulDialog</name>
    <message>
        <source>Renvois Douteux</source>
        <translation>Doubtful References</translation>
    </message>
    <message>
        <source>&amp;Fermer</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>Renvois douteux</source>
        <translation>Doubtful references</translation>
    </message>
    <message>
        <source>Ctrl+C copie les lignes choisies</source>
        <translation>Ctrl+C copies the chosen lines</translation>
    </message>
    <message>
        <source>Paragraphe</source>
        <translation>Paragraph</translation>
    </message>
    <message>
        <source>Mots</source>
        <translation>Words</translation>
    </message>
    <message>
        <source>Raison</source>
        <translation>Reason</translation>
    </message>
</context>
<context>
    <name>EpubCommand</name>
    <message>
        <source>Livre numérique...</source>
        <translation>E-book...</translation>
    </message>
</context>
<context>
    <name>ExportCommand</name>
    <message>
        <source>Conversion arrêtée : aucun fichier n&apos;a été écrit.</source>
        <translation>Conversion stopped: no file was written.</translation>
    </message>
    <message>
        <source>BUG</source>
        <translation>BUG</translation>
    </message>
    <message>
        <source>Aucun fichier n&apos;a été écrit.</source>
        <translation>No file was written.</translation>
    </message>
    <message numerus="yes">
        <source>%n paragraphe(s) écrit(s) : %1</source>
        <translation>
            <numerusform>%n paragraph written: %1</numerusform>
            <numerusform>%n paragraphs written: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Aucun paragraphe n&apos;est écrit de %1 à %2.</source>
        <translation>No paragraph is written from %1 to %2.</translation>
    </message>
    <message>
        <source>Zut</source>
        <translation>Oops</translation>
    </message>
</context>
<context>
    <name>Failures</name>
    <message>
        <source>le disque est plein</source>
        <translation>the disk is full</translation>
    </message>
    <message>
        <source>le fichier est trop grand</source>
        <translation>the file is too large</translation>
    </message>
    <message>
        <source>l&apos;accès est refusé</source>
        <translation>access is denied</translation>
    </message>
    <message>
        <source>le disque est protégé en écriture</source>
        <translation>the disk is write-protected</translation>
    </message>
    <message>
        <source>le dossier n&apos;existe pas</source>
        <translation>the folder does not exist</translation>
    </message>
    <message>
        <source>ce n&apos;est pas un fichier</source>
        <translation>this is not a file</translation>
    </message>
    <message>
        <source>le nom est trop long</source>
        <translation>the name is too long</translation>
    </message>
    <message>
        <source>le disque est en erreur</source>
        <translation>the disk has an error</translation>
    </message>
    <message>
        <source>le disque n&apos;est plus là</source>
        <translation>the disk is no longer there</translation>
    </message>
    <message>
        <source>trop de fichiers sont ouverts</source>
        <translation>too many files are open</translation>
    </message>
    <message>
        <source>les liens tournent en rond</source>
        <translation>the links go round in circles</translation>
    </message>
    <message>
        <source>ce fichier sert à l&apos;aventure ouverte</source>
        <translation>this file belongs to the open adventure</translation>
    </message>
    <message>
        <source>un autre programme s&apos;en sert</source>
        <translation>another program is using it</translation>
    </message>
    <message>
        <source>ce nom n&apos;est pas permis</source>
        <translation>this name is not allowed</translation>
    </message>
    <message>
        <source>ce fichier est abîmé, ou n&apos;est pas de cette sorte</source>
        <translation>this file is damaged, or is not of this kind</translation>
    </message>
    <message>
        <source>un autre programme en a changé le contenu</source>
        <translation>another program has changed its contents</translation>
    </message>
    <message>
        <source>le fichier est introuvable</source>
        <translation>the file cannot be found</translation>
    </message>
    <message>
        <source>%1 : %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>Erreur de lecture de fichier. Paragraphes illisibles : %1</source>
        <translation>File reading error. Unreadable paragraphs: %1</translation>
    </message>
    <message>
        <source>Erreur pendant l&apos;écriture du fichier.</source>
        <translation>Error while writing the file.</translation>
    </message>
    <message>
        <source>Erreur de lecture de fichier.</source>
        <translation>File reading error.</translation>
    </message>
    <message>
        <source>BUG</source>
        <translation>BUG</translation>
    </message>
    <message>
        <source>Une action a échoué.</source>
        <translation>An action has failed.</translation>
    </message>
    <message>
        <source>Le nom du fichier est vide.</source>
        <translation>The name of the file is empty.</translation>
    </message>
</context>
<context>
    <name>FigureTable</name>
    <message>
        <source>&amp;Trier par :</source>
        <translation>&amp;Sort by:</translation>
    </message>
    <message>
        <source>%1, décroissant</source>
        <translation>%1, descending</translation>
    </message>
</context>
<context>
    <name>Finding</name>
    <message>
        <source>Un renvoi mène au %1, qui n&apos;est pas écrit.</source>
        <translation>A reference leads to %1, which is not written.</translation>
    </message>
    <message>
        <source>Il n&apos;y a pas de paragraphe %1 : le dernier est le 2000.</source>
        <translation>There is no paragraph %1: the last one is 2000.</translation>
    </message>
    <message>
        <source>Aucune lecture n&apos;y arrive : aucun paragraphe n&apos;y mène.</source>
        <translation>No reading gets there: no paragraph leads to it.</translation>
    </message>
    <message>
        <source>Piège : de ces paragraphes (%1) on n&apos;arrive plus à aucune fin. On y tourne : %2.</source>
        <translation>Trap: from these paragraphs (%1) no ending can be reached any more. One goes round: %2.</translation>
    </message>
    <message>
        <source>Aucune lecture n&apos;arrive à une fin.</source>
        <translation>No reading reaches an ending.</translation>
    </message>
    <message>
        <source>Le seul choix est de rester au même paragraphe.</source>
        <translation>The only choice is to stay at the same paragraph.</translation>
    </message>
    <message>
        <source>Rien ne mène plus loin : est-ce une fin ?</source>
        <translation>Nothing leads further: is this an ending?</translation>
    </message>
    <message>
        <source>Plusieurs renvois mènent au %1.</source>
        <translation>Several references lead to %1.</translation>
    </message>
    <message>
        <source>L&apos;un des choix est de rester au même paragraphe.</source>
        <translation>One of the choices is to stay at the same paragraph.</translation>
    </message>
    <message>
        <source>Le HTML n&apos;aura pas de lien ici : il veut « %1 » à la lettre, sans accent ni autre signe particulier.</source>
        <translation>The HTML will have no link here: it needs “%1” to the letter, without an accent or any other special character.</translation>
    </message>
    <message>
        <source>Il reste quelque chose à faire.</source>
        <translation>Something remains to be done.</translation>
    </message>
    <message>
        <source>Le paragraphe a moins de cinq mots.</source>
        <translation>The paragraph has fewer than five words.</translation>
    </message>
    <message>
        <source>Renvois à un paragraphe vide</source>
        <translation>References to an empty paragraph</translation>
    </message>
    <message>
        <source>Renvois au-delà du 2000</source>
        <translation>References beyond 2000</translation>
    </message>
    <message>
        <source>Paragraphes où aucune lecture n&apos;arrive</source>
        <translation>Paragraphs that no reading reaches</translation>
    </message>
    <message>
        <source>Pièges d&apos;où aucune fin n&apos;est possible</source>
        <translation>Traps from which no ending is possible</translation>
    </message>
    <message>
        <source>Livre sans fin</source>
        <translation>Book without an ending</translation>
    </message>
    <message>
        <source>Paragraphes qui ne mènent qu&apos;à eux-mêmes</source>
        <translation>Paragraphs that lead only to themselves</translation>
    </message>
    <message>
        <source>Fins</source>
        <translation>Endings</translation>
    </message>
    <message>
        <source>Renvois répétés dans un paragraphe</source>
        <translation>References repeated within a paragraph</translation>
    </message>
    <message>
        <source>Renvois au paragraphe lui-même</source>
        <translation>References to the paragraph itself</translation>
    </message>
    <message>
        <source>Renvois douteux</source>
        <translation>Doubtful references</translation>
    </message>
    <message>
        <source>Renvois qui ne sont pas suivis</source>
        <translation>References that are not followed</translation>
    </message>
    <message>
        <source>Renvois sans lien dans le HTML</source>
        <translation>References without a link in the HTML</translation>
    </message>
    <message>
        <source>Reste à faire</source>
        <translation>Still to do</translation>
    </message>
    <message>
        <source>Paragraphes très courts</source>
        <translation>Very short paragraphs</translation>
    </message>
    <message>
        <source>Aucune lecture n&apos;y arrive : les paragraphes qui y mènent tournent en rond (%1).</source>
        <translation>No reading gets there: the paragraphs that lead to it go round in circles (%1).</translation>
    </message>
    <message>
        <source>Aucune lecture n&apos;y arrive : il ne dépend que d&apos;un cercle de paragraphes, au %1, où rien ne mène.</source>
        <translation>No reading gets there: it hangs only from a circle of paragraphs, at %1, to which nothing leads.</translation>
    </message>
    <message>
        <source>Aucune lecture n&apos;y arrive : il ne dépend que du %1, où aucun paragraphe ne mène.</source>
        <translation>No reading gets there: it hangs only from %1, to which no paragraph leads.</translation>
    </message>
    <message>
        <source>Grammaire</source>
        <translation>Grammar</translation>
    </message>
    <message>
        <source>« %1 »</source>
        <translation>« %1 »</translation>
    </message>
    <message>
        <source>%1 Peut-être %2.</source>
        <translation>%1 Perhaps %2.</translation>
    </message>
</context>
<context>
    <name>FindingGroups</name>
    <message>
        <source>accepté</source>
        <translation>accepted</translation>
    </message>
    <message>
        <source>Gravité</source>
        <translation>Severity</translation>
    </message>
    <message>
        <source>Sorte</source>
        <translation>Kind</translation>
    </message>
    <message>
        <source>Paragraphe</source>
        <translation>Paragraph</translation>
    </message>
    <message>
        <source>Constat</source>
        <translation>Finding</translation>
    </message>
    <message>
        <source>Texte</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>État</source>
        <translation>State</translation>
    </message>
</context>
<context>
    <name>FindingModel</name>
    <message>
        <source>Paragraphe</source>
        <translation>Paragraph</translation>
    </message>
    <message>
        <source>Constat</source>
        <translation>Finding</translation>
    </message>
    <message>
        <source>Texte</source>
        <translation>Text</translation>
    </message>
</context>
<context>
    <name>FirstWords</name>
    <message>
        <source>illisible</source>
        <translation>unreadable</translation>
    </message>
</context>
<context>
    <name>FormattingBar</name>
    <message>
        <source>Police</source>
        <translation>Font</translation>
    </message>
    <message>
        <source>Taille en points</source>
        <translation>Size in points</translation>
    </message>
    <message>
        <source>Gras (Ctrl+B)</source>
        <translation>Bold (Ctrl+B)</translation>
    </message>
    <message>
        <source>Gras</source>
        <translation>Bold</translation>
    </message>
    <message>
        <source>G</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Italique (Ctrl+I)</source>
        <translation>Italic (Ctrl+I)</translation>
    </message>
    <message>
        <source>Italique</source>
        <translation>Italic</translation>
    </message>
    <message>
        <source>I</source>
        <translation>I</translation>
    </message>
    <message>
        <source>Souligné (Ctrl+U)</source>
        <translation>Underline (Ctrl+U)</translation>
    </message>
    <message>
        <source>Souligné</source>
        <translation>Underline</translation>
    </message>
    <message>
        <source>S</source>
        <translation>U</translation>
    </message>
    <message>
        <source>Texte Pur : ni gras, ni italique, ni souligné, ni barré</source>
        <translation>Plain Text: not bold, italic, underlined or struck out</translation>
    </message>
    <message>
        <source>Texte Pur</source>
        <translation>Plain Text</translation>
    </message>
    <message>
        <source>Aligner à Gauche</source>
        <translation>Align Left</translation>
    </message>
    <message>
        <source>Gauche</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>Centrer</source>
        <translation>Centre</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centre</translation>
    </message>
    <message>
        <source>Aligner à Droite</source>
        <translation>Align Right</translation>
    </message>
    <message>
        <source>Droite</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>Puces</source>
        <translation>Bullets</translation>
    </message>
    <message>
        <source>Sans Puces</source>
        <translation>No Bullets</translation>
    </message>
    <message>
        <source>Noir</source>
        <translation>Black</translation>
    </message>
    <message>
        <source>Bleu</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Gris</source>
        <translation>Grey</translation>
    </message>
    <message>
        <source>Vert</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Purple</translation>
    </message>
    <message>
        <source>Rouge</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Jaune</source>
        <translation>Yellow</translation>
    </message>
    <message>
        <source>Mises en Forme Additionnelles</source>
        <translation>Additional Formatting</translation>
    </message>
    <message>
        <source>Plus</source>
        <translation>More</translation>
    </message>
</context>
<context>
    <name>FunctionsMenu</name>
    <message>
        <source>Paragraphes rédigés : %1</source>
        <translation>Written paragraphs: %1</translation>
    </message>
    <message>
        <source>Compte</source>
        <translation>Count</translation>
    </message>
</context>
<context>
    <name>GrammarCheck</name>
    <message>
        <source>le programme ne répond plus</source>
        <translation>the program does not answer any more</translation>
    </message>
    <message>
        <source>le programme ne démarre pas</source>
        <translation>the program does not start</translation>
    </message>
    <message>
        <source>Grammaire : %1 %</source>
        <translation>Grammar: %1 %</translation>
    </message>
    <message>
        <source>Grammaire : arrêtée à la ligne %1 sur %2.</source>
        <translation>Grammar: stopped at line %1 of %2.</translation>
    </message>
    <message>
        <source>le programme répond n&apos;importe quoi</source>
        <translation>the program answers nonsense</translation>
    </message>
    <message numerus="yes">
        <source>Grammaire : %n constat(s).</source>
        <translation>
            <numerusform>Grammar: %n finding.</numerusform>
            <numerusform>Grammar: %n findings.</numerusform>
        </translation>
    </message>
    <message>
        <source>le programme s&apos;est arrêté à la ligne %1 sur %2</source>
        <translation>the program stopped at line %1 of %2</translation>
    </message>
    <message>
        <source>Grammaire : %1.</source>
        <translation>Grammar: %1.</translation>
    </message>
</context>
<context>
    <name>GraphLegend</name>
    <message>
        <source>Où mène le désigné</source>
        <translation>Where the marked one leads</translation>
    </message>
    <message>
        <source>Ce qui y mène</source>
        <translation>What leads to it</translation>
    </message>
</context>
<context>
    <name>GraphNodes</name>
    <message>
        <source>déjà montré ailleurs</source>
        <translation>already shown elsewhere</translation>
    </message>
    <message>
        <source>point d&apos;arrêt</source>
        <translation>stop</translation>
    </message>
    <message>
        <source>suite non montrée</source>
        <translation>goes on, not shown</translation>
    </message>
</context>
<context>
    <name>GridCell</name>
    <message>
        <source>%1 : %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>GridLegend</name>
    <message>
        <source>Jamais lu</source>
        <translation>Never read</translation>
    </message>
    <message>
        <source>1 %</source>
        <translation>1%</translation>
    </message>
    <message>
        <source>10 %</source>
        <translation>10%</translation>
    </message>
    <message>
        <source>Toujours</source>
        <translation>Always</translation>
    </message>
</context>
<context>
    <name>GridShades</name>
    <message>
        <source>aucune lecture n&apos;y passe</source>
        <translation>no reading comes through here</translation>
    </message>
    <message>
        <source>%1 % des lectures y passent</source>
        <translation>%1% of the readings come through here</translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message numerus="yes">
        <source>%n paragraphe(s) modifié(s) depuis : %1 Les remettre aussi comme avant la commande ?</source>
        <translation>
            <numerusform>%n paragraph has been changed since: %1 Put it back too as it was before the command?</numerusform>
            <numerusform>%n paragraphs have been changed since: %1 Put them back too as they were before the command?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n paragraphe(s) modifié(s) depuis : %1 Les remettre aussi comme après la commande ?</source>
        <translation>
            <numerusform>%n paragraph has been changed since: %1 Put it back too as it was after the command?</numerusform>
            <numerusform>%n paragraphs have been changed since: %1 Put them back too as they were after the command?</numerusform>
        </translation>
    </message>
    <message>
        <source>Songez-y</source>
        <translation>Think About It</translation>
    </message>
    <message>
        <source>Annulation...</source>
        <translation>Undoing...</translation>
    </message>
    <message>
        <source>Rétablissement...</source>
        <translation>Redoing...</translation>
    </message>
    <message>
        <source>Annulé : %1.</source>
        <translation>Undone: %1.</translation>
    </message>
    <message>
        <source>Rétabli : %1.</source>
        <translation>Redone: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Annulé : %1, et %n commande(s) d&apos;après.</source>
        <translation>
            <numerusform>Undone: %1, and %n later command.</numerusform>
            <numerusform>Undone: %1, and %n later commands.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Rétabli : %1, et %n commande(s) d&apos;avant.</source>
        <translation>
            <numerusform>Redone: %1, and %n earlier command.</numerusform>
            <numerusform>Redone: %1, and %n earlier commands.</numerusform>
        </translation>
    </message>
    <message>
        <source>Ctrl+Alt+Y rétablit la commande.</source>
        <translation>Ctrl+Alt+Y redoes it.</translation>
    </message>
    <message>
        <source>Ctrl+Alt+Z annule la commande.</source>
        <translation>Ctrl+Alt+Z undoes it.</translation>
    </message>
    <message>
        <source>Cette commande ne peut plus être annulée.</source>
        <translation>This command can no longer be undone.</translation>
    </message>
    <message>
        <source>Cette commande ne peut plus être rétablie.</source>
        <translation>This command can no longer be redone.</translation>
    </message>
</context>
<context>
    <name>HistoryMenu</name>
    <message>
        <source>A&amp;nnuler : %1</source>
        <translation>U&amp;ndo: %1</translation>
    </message>
    <message>
        <source>A&amp;nnuler une commande</source>
        <translation>U&amp;ndo a Command</translation>
    </message>
    <message>
        <source>Ré&amp;tablir : %1</source>
        <translation>Re&amp;do: %1</translation>
    </message>
    <message>
        <source>Ré&amp;tablir une commande</source>
        <translation>Re&amp;do a Command</translation>
    </message>
</context>
<context>
    <name>HistoryWindow</name>
    <message>
        <source>Historique du Livre</source>
        <translation>Book History</translation>
    </message>
    <message>
        <source>Commandes, la plus récente en premier</source>
        <translation>Commands, the most recent first</translation>
    </message>
    <message>
        <source>Heure</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Commande</source>
        <translation>Command</translation>
    </message>
    <message>
        <source>Changés</source>
        <translation>Changed</translation>
    </message>
    <message>
        <source>Paragraphes qui ont un autre texte, numéro, renvoi ou une autre marque</source>
        <translation>Paragraphs that have another text, number, reference or mark</translation>
    </message>
    <message>
        <source>Renumérotés</source>
        <translation>Renumbered</translation>
    </message>
    <message>
        <source>Ceux d&apos;entre eux qui ont un autre numéro</source>
        <translation>Those among them that have another number</translation>
    </message>
    <message>
        <source>État</source>
        <translation>State</translation>
    </message>
    <message>
        <source>Re&amp;venir avant cette commande</source>
        <translation>&amp;Go back before this command</translation>
    </message>
    <message>
        <source>Annuler d&apos;un coup la commande choisie et toutes celles qui l&apos;ont suivie</source>
        <translation>Undo at once the chosen command and all those that followed it</translation>
    </message>
    <message>
        <source>Ré&amp;tablir jusqu&apos;à cette commande</source>
        <translation>&amp;Redo up to this command</translation>
    </message>
    <message>
        <source>Rétablir d&apos;un coup les commandes annulées, la choisie comprise</source>
        <translation>Redo at once the undone commands, the chosen one included</translation>
    </message>
    <message>
        <source>Table des &amp;numéros...</source>
        <translation>&amp;Number table...</translation>
    </message>
    <message>
        <source>L&apos;ancien et le nouveau numéro de chaque paragraphe</source>
        <translation>The old and the new number of each paragraph</translation>
    </message>
    <message>
        <source>&amp;Fermer</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>Fermer cette fenêtre (Échap)</source>
        <translation>Close this window (Esc)</translation>
    </message>
    <message>
        <source>La liste est vide : MasterMix, Remplacer Tous et les autres commandes sur tout le livre paraîtront ici, et pourront être annulées.</source>
        <translation>The list is empty: MasterMix, Replace All and the other commands on the whole book will appear here, and can be undone.</translation>
    </message>
    <message numerus="yes">
        <source>Rétablir jusqu&apos;à cette commande rétablit %n commande(s).</source>
        <translation>
            <numerusform>“Redo up to this command” redoes %n command.</numerusform>
            <numerusform>“Redo up to this command” redoes %n commands.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Revenir avant cette commande annule %n commande(s).</source>
        <translation>
            <numerusform>“Go back before this command” undoes %n command.</numerusform>
            <numerusform>“Go back before this command” undoes %n commands.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HistoryWords</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Ouverture de l&apos;aventure</source>
        <translation>Opening of the adventure</translation>
    </message>
    <message>
        <source>Reprise de l&apos;aventure</source>
        <translation>Recovery of the adventure</translation>
    </message>
    <message>
        <source>Maintenant</source>
        <translation>Now</translation>
    </message>
    <message>
        <source>Ouverture, avant %1</source>
        <translation>Opening, before %1</translation>
    </message>
    <message>
        <source>Avant %1</source>
        <translation>Before %1</translation>
    </message>
    <message>
        <source>Après %1</source>
        <translation>After %1</translation>
    </message>
    <message>
        <source>Maintenant, après %1</source>
        <translation>Now, after %1</translation>
    </message>
    <message>
        <source>annulée</source>
        <translation>undone</translation>
    </message>
    <message>
        <source>faite</source>
        <translation>done</translation>
    </message>
    <message>
        <source>définitive : trop ancienne</source>
        <translation>final: too old</translation>
    </message>
    <message>
        <source>définitive : textes perdus</source>
        <translation>final: texts lost</translation>
    </message>
    <message>
        <source>définitive : bloquée</source>
        <translation>final: blocked</translation>
    </message>
    <message>
        <source>Cette commande est trop ancienne : Usmira garde de quoi revenir sur les %1 dernières, et sur 256 Mo de textes.</source>
        <translation>This command is too old: Usmira keeps what it needs to undo the last %1 ones, up to 256 MB of texts.</translation>
    </message>
    <message>
        <source>Cette commande est définitive : les textes d&apos;avant n&apos;ont pas pu être gardés.</source>
        <translation>This command is final: the texts of before could not be kept.</translation>
    </message>
    <message>
        <source>Cette commande est définitive : les textes gardés sont perdus ou abîmés.</source>
        <translation>This command is final: the texts that were kept are lost or damaged.</translation>
    </message>
    <message>
        <source>Cette commande est définitive : une autre, à rétablir avant elle, ne peut plus l&apos;être.</source>
        <translation>This command is final: another one, to be redone before it, can no longer be redone.</translation>
    </message>
    <message>
        <source>Cette commande est définitive : une plus récente, à annuler avant elle, ne peut plus l&apos;être.</source>
        <translation>This command is final: a more recent one, to be undone before it, can no longer be undone.</translation>
    </message>
</context>
<context>
    <name>HtmlCommands</name>
    <message>
        <source>Conversion...</source>
        <translation>Converting...</translation>
    </message>
</context>
<context>
    <name>InfoMenu</name>
    <message>
        <source>Usmira %1
Un atelier pour écrire des livres-jeux.</source>
        <translation>Usmira %1
A workshop for writing gamebooks.</translation>
    </message>
    <message>
        <source>À Propos</source>
        <translation>About</translation>
    </message>
</context>
<context>
    <name>MatchModel</name>
    <message>
        <source>%1, caractère %2 : %3</source>
        <translation>%1, character %2: %3</translation>
    </message>
</context>
<context>
    <name>MatchWindow</name>
    <message>
        <source>Toutes les Occurrences</source>
        <translation>All Matches</translation>
    </message>
    <message>
        <source>Occurrences</source>
        <translation>Matches</translation>
    </message>
    <message>
        <source>Entrée montre l&apos;occurrence dans le texte</source>
        <translation>Enter shows the match in the text</translation>
    </message>
    <message>
        <source>&amp;Remplacer la sélection</source>
        <translation>&amp;Replace the selection</translation>
    </message>
    <message>
        <source>Remplacer les occurrences choisies dans la liste, toutes ou aucune</source>
        <translation>Replace the matches chosen in the list, all or none</translation>
    </message>
    <message>
        <source>&amp;Fermer</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>Fermer cette fenêtre (Échap)</source>
        <translation>Close this window (Esc)</translation>
    </message>
    <message>
        <source>Occurrences : %1</source>
        <translation>Matches: %1</translation>
    </message>
    <message>
        <source>Occurrences jusqu&apos;au paragraphe %1 : %2</source>
        <translation>Matches up to paragraph %1: %2</translation>
    </message>
    <message>
        <source>%1 (liste arrêtée là)</source>
        <translation>%1 (list stopped there)</translation>
    </message>
    <message>
        <source>%1. Paragraphes illisibles : %2</source>
        <translation>%1. Unreadable paragraphs: %2</translation>
    </message>
</context>
<context>
    <name>MissingCharacters</name>
    <message>
        <source>Aucune police n&apos;a ces caractères, qui manqueront : %1.</source>
        <translation>No font has these characters, which will be missing: %1.</translation>
    </message>
</context>
<context>
    <name>Navigation</name>
    <message>
        <source>Paragraphe libre : %1</source>
        <translation>Free paragraph: %1</translation>
    </message>
    <message>
        <source>Voilà</source>
        <translation>There You Are</translation>
    </message>
    <message>
        <source>Tous les paragraphes sont écrits ou réservés !</source>
        <translation>All the paragraphs are written or reserved!</translation>
    </message>
    <message>
        <source>Aïe !</source>
        <translation>Ouch!</translation>
    </message>
</context>
<context>
    <name>NumberModel</name>
    <message>
        <source>Le %1 est resté le %1.</source>
        <translation>%1 has remained %1.</translation>
    </message>
    <message>
        <source>L&apos;ancien %1 est devenu le %2.</source>
        <translation>The old %1 has become %2.</translation>
    </message>
    <message>
        <source>Le nouveau %1 était le %2.</source>
        <translation>The new %1 was %2.</translation>
    </message>
    <message>
        <source>Aucun paragraphe écrit n&apos;a ou n&apos;avait le numéro %1.</source>
        <translation>No written paragraph has or had the number %1.</translation>
    </message>
</context>
<context>
    <name>NumberPreview</name>
    <message numerus="yes">
        <source>%n renvoi(s) douteux.</source>
        <translation>
            <numerusform>%n doubtful reference.</numerusform>
            <numerusform>%n doubtful references.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NumberTable</name>
    <message>
        <source>Ancien numéro</source>
        <translation>Old number</translation>
    </message>
    <message>
        <source>Nouveau numéro</source>
        <translation>New number</translation>
    </message>
    <message>
        <source>Premiers mots</source>
        <translation>First words</translation>
    </message>
</context>
<context>
    <name>NumberWindow</name>
    <message>
        <source>Table des numéros</source>
        <translation>Number Table</translation>
    </message>
    <message>
        <source>&amp;De :</source>
        <translation>&amp;From:</translation>
    </message>
    <message>
        <source>Le moment des anciens numéros</source>
        <translation>The moment of the old numbers</translation>
    </message>
    <message>
        <source>&amp;À :</source>
        <translation>&amp;To:</translation>
    </message>
    <message>
        <source>Le moment des nouveaux numéros</source>
        <translation>The moment of the new numbers</translation>
    </message>
    <message>
        <source>C&amp;hercher le numéro :</source>
        <translation>Find &amp;number:</translation>
    </message>
    <message>
        <source>Un ancien ou un nouveau numéro ; Entrée passe de l&apos;un à l&apos;autre</source>
        <translation>An old or a new number; Enter goes from one to the other</translation>
    </message>
    <message>
        <source>&amp;Trier par :</source>
        <translation>&amp;Sort by:</translation>
    </message>
    <message>
        <source>Un clic sur le titre d&apos;une colonne la trie aussi, un second à rebours</source>
        <translation>A click on a column&apos;s title sorts by it too, a second one the other way round</translation>
    </message>
    <message>
        <source>ancien numéro</source>
        <translation>old number</translation>
    </message>
    <message>
        <source>nouveau numéro</source>
        <translation>new number</translation>
    </message>
    <message>
        <source>ancien numéro, décroissant</source>
        <translation>old number, descending</translation>
    </message>
    <message>
        <source>nouveau numéro, décroissant</source>
        <translation>new number, descending</translation>
    </message>
    <message>
        <source>Anciens et nouveaux numéros</source>
        <translation>Old and new numbers</translation>
    </message>
    <message>
        <source>Un double-clic ou Entrée va au paragraphe</source>
        <translation>A double click or Enter goes to the paragraph</translation>
    </message>
    <message>
        <source>&amp;Copier</source>
        <translation>Co&amp;py</translation>
    </message>
    <message>
        <source>Copier les lignes choisies, ou toutes, comme texte (Ctrl+C dans la table)</source>
        <translation>Copy the chosen lines, or all of them, as text (Ctrl+C in the table)</translation>
    </message>
    <message>
        <source>&amp;Enregistrer...</source>
        <translation>Sa&amp;ve...</translation>
    </message>
    <message>
        <source>Enregistrer toute la table pour un tableur</source>
        <translation>Save the whole table for a spreadsheet</translation>
    </message>
    <message>
        <source>&amp;Fermer</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>Fermer cette fenêtre (Échap)</source>
        <translation>Close this window (Esc)</translation>
    </message>
    <message numerus="yes">
        <source>%n ligne(s) copiée(s).</source>
        <translation>
            <numerusform>%n line copied.</numerusform>
            <numerusform>%n lines copied.</numerusform>
        </translation>
    </message>
    <message>
        <source>Enregistrer la Table</source>
        <translation>Save the Table</translation>
    </message>
    <message>
        <source>Fichiers CSV (*.csv)|*.csv</source>
        <translation>CSV files (*.csv)|*.csv</translation>
    </message>
    <message>
        <source>%1 numéros</source>
        <translation>%1 numbers</translation>
    </message>
    <message>
        <source>Enregistré : %1</source>
        <translation>Saved: %1</translation>
    </message>
    <message>
        <source>Aucun paragraphe n&apos;a ce numéro.</source>
        <translation>No paragraph has this number.</translation>
    </message>
    <message numerus="yes">
        <source>%n paragraphe(s) sur %1 ont un autre numéro.</source>
        <translation>
            <numerusform>%n paragraph of %1 has another number.</numerusform>
            <numerusform>%n paragraphs of %1 have another number.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PageCommand</name>
    <message>
        <source>Page de lecture...</source>
        <translation>Reading page...</translation>
    </message>
</context>
<context>
    <name>PageSetup</name>
    <message>
        <source>Le papier doit avoir de %1 à %2 mm de côté.</source>
        <translation>The sides of the paper must be %1 to %2 mm.</translation>
    </message>
    <message>
        <source>Les marges doivent avoir de 0 à %1 mm.</source>
        <translation>Margins must be 0 to %1 mm.</translation>
    </message>
    <message>
        <source>Les marges intérieure et extérieure ne laissent pas %1 mm au texte sur un papier large de %2 mm.</source>
        <translation>The inside and outside margins do not leave %1 mm for the text on paper %2 mm wide.</translation>
    </message>
    <message>
        <source>Les marges de tête et de pied ne laissent pas %1 mm au texte sur un papier haut de %2 mm.</source>
        <translation>The top and bottom margins do not leave %1 mm for the text on paper %2 mm high.</translation>
    </message>
    <message>
        <source>Les caractères doivent avoir de %1 à %2 points.</source>
        <translation>Type must be %1 to %2 points.</translation>
    </message>
    <message>
        <source>L&apos;interligne doit avoir de %1 à %2 points pour des caractères de %3 points.</source>
        <translation>The leading must be %1 to %2 points for type of %3 points.</translation>
    </message>
    <message>
        <source>Le titre courant demande une marge de tête de %1 mm au moins.</source>
        <translation>The running head asks for a top margin of at least %1 mm.</translation>
    </message>
    <message>
        <source>Les numéros de page demandent une marge de pied de %1 mm au moins.</source>
        <translation>The page numbers ask for a bottom margin of at least %1 mm.</translation>
    </message>
    <message>
        <source>Choisissez une police.</source>
        <translation>Choose a font.</translation>
    </message>
    <message>
        <source>Les marges et l&apos;interligne ne laissent pas la hauteur d&apos;un numéro et de deux lignes.</source>
        <translation>Margins and leading do not leave the height of a number and two lines.</translation>
    </message>
</context>
<context>
    <name>PageSetupPanel</name>
    <message>
        <source>Papier</source>
        <translation>Paper</translation>
    </message>
    <message>
        <source>6 x 9 pouces</source>
        <translation>6 x 9 inches</translation>
    </message>
    <message>
        <source>14 x 21 cm</source>
        <translation>14 x 21 cm</translation>
    </message>
    <message>
        <source>Autres mesures</source>
        <translation>Other measures</translation>
    </message>
    <message>
        <source>Largeur du papier</source>
        <translation>Width of the paper</translation>
    </message>
    <message>
        <source>Hauteur du papier</source>
        <translation>Height of the paper</translation>
    </message>
    <message>
        <source>Marges en millimètres :</source>
        <translation>Margins in millimetres:</translation>
    </message>
    <message>
        <source>Aucun</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Numéros de la page</source>
        <translation>Its numbers</translation>
    </message>
    <message>
        <source>Titre du livre</source>
        <translation>Title of the book</translation>
    </message>
    <message>
        <source>Police des numéros</source>
        <translation>Font of the numbers</translation>
    </message>
    <message>
        <source>Police du texte</source>
        <translation>Font of the text</translation>
    </message>
    <message>
        <source>Tels quels</source>
        <translation>As written</translation>
    </message>
    <message>
        <source>En gras</source>
        <translation>Bold</translation>
    </message>
    <message>
        <source>Avec une flèche</source>
        <translation>With an arrow</translation>
    </message>
    <message>
        <source>Pa&amp;ge</source>
        <translation>Pa&amp;ge</translation>
    </message>
    <message>
        <source>&amp;Papier</source>
        <translation>Pape&amp;r</translation>
    </message>
    <message>
        <source>Inté&amp;rieure</source>
        <translation>&amp;Inside</translation>
    </message>
    <message>
        <source>&amp;Extérieure</source>
        <translation>&amp;Outside</translation>
    </message>
    <message>
        <source>&amp;Tête</source>
        <translation>&amp;Top</translation>
    </message>
    <message>
        <source>Pie&amp;d</source>
        <translation>Botto&amp;m</translation>
    </message>
    <message>
        <source>Re&amp;cto verso</source>
        <translation>T&amp;wo sides</translation>
    </message>
    <message>
        <source>&amp;Une page par paragraphe</source>
        <translation>A page for &amp;each paragraph</translation>
    </message>
    <message>
        <source>Te&amp;xte</source>
        <translation>Te&amp;xt</translation>
    </message>
    <message>
        <source>&amp;Police</source>
        <translation>&amp;Font</translation>
    </message>
    <message>
        <source>&amp;Taille</source>
        <translation>&amp;Size</translation>
    </message>
    <message>
        <source>Inte&amp;rligne</source>
        <translation>&amp;Leading</translation>
    </message>
    <message>
        <source>&amp;Justifié</source>
        <translation>&amp;Justified</translation>
    </message>
    <message>
        <source>&amp;Mots coupés en fin de ligne</source>
        <translation>&amp;Words parted at line ends</translation>
    </message>
    <message>
        <source>T&amp;out en noir</source>
        <translation>&amp;All in black</translation>
    </message>
    <message>
        <source>Titre &amp;courant</source>
        <translation>Running &amp;head</translation>
    </message>
    <message>
        <source>Numéros &amp;de page</source>
        <translation>Page n&amp;umbers</translation>
    </message>
    <message>
        <source>&amp;Numéros</source>
        <translation>&amp;Numbers</translation>
    </message>
    <message>
        <source>G&amp;ras</source>
        <translation>Bo&amp;ld</translation>
    </message>
    <message>
        <source>It&amp;aliques</source>
        <translation>&amp;Italic</translation>
    </message>
    <message>
        <source>&amp;Soulignés</source>
        <translation>&amp;Underlined</translation>
    </message>
    <message>
        <source>&amp;Centrés</source>
        <translation>&amp;Centred</translation>
    </message>
    <message>
        <source>R&amp;envois</source>
        <translation>R&amp;eferences</translation>
    </message>
</context>
<context>
    <name>ParagraphPage</name>
    <message>
        <source>Vide</source>
        <translation>Empty</translation>
    </message>
</context>
<context>
    <name>ParagraphStatuses</name>
    <message>
        <source>Vide</source>
        <translation>Empty</translation>
    </message>
    <message>
        <source>Tapé</source>
        <translation>Typed</translation>
    </message>
    <message>
        <source>Mort</source>
        <translation>Dead end</translation>
    </message>
    <message>
        <source>Réservé</source>
        <translation>Reserved</translation>
    </message>
    <message>
        <source>Actuel</source>
        <translation>Current</translation>
    </message>
    <message>
        <source>Orphelin</source>
        <translation>Orphan</translation>
    </message>
    <message>
        <source>Fixe</source>
        <translation>Fixed</translation>
    </message>
</context>
<context>
    <name>PdfCommand</name>
    <message>
        <source>Mise en pages...</source>
        <translation>Setting the pages...</translation>
    </message>
</context>
<context>
    <name>PreviewText</name>
    <message>
        <source>Le texte de ce paragraphe est illisible.</source>
        <translation>The text of this paragraph cannot be read.</translation>
    </message>
    <message>
        <source>(Vide)</source>
        <translation>(Empty)</translation>
    </message>
</context>
<context>
    <name>ProximityLines</name>
    <message>
        <source>La liste s&apos;arrête après %1 lignes.</source>
        <translation>The list stops after %1 lines.</translation>
    </message>
    <message>
        <source>%1 mène au %2</source>
        <translation>%1 leads to %2</translation>
    </message>
    <message>
        <source>%1 mène au %2 et au %3</source>
        <translation>%1 leads to %2 and to %3</translation>
    </message>
    <message>
        <source>Proximity Scan avec 0 ou moins ne fait aucun sens.</source>
        <translation>A Proximity Scan with 0 or less makes no sense.</translation>
    </message>
    <message>
        <source>Aucun Problème !</source>
        <translation>No Problem!</translation>
    </message>
    <message>
        <source>Niouf</source>
        <translation>Nope</translation>
    </message>
</context>
<context>
    <name>ReadingLines</name>
    <message>
        <source>(Vide)</source>
        <translation>(Empty)</translation>
    </message>
    <message>
        <source>[%1]  </source>
        <translation>[%1]  </translation>
    </message>
</context>
<context>
    <name>ReadingSentences</name>
    <message>
        <source>Tout est lu.</source>
        <translation>All is read.</translation>
    </message>
    <message numerus="yes">
        <source>D&apos;ici, tout est lu ; depuis le début, il reste %n paragraphe(s) à lire.</source>
        <translation>
            <numerusform>From here, all is read; from the start, %n paragraph remains to be read.</numerusform>
            <numerusform>From here, all is read; from the start, %n paragraphs remain to be read.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Tout ce qu&apos;une lecture peut atteindre est lu ; %n paragraphe(s) non lu(s) ne sont atteints par aucune.</source>
        <translation>
            <numerusform>All that a reading can reach is read; %n unread paragraph is reached by none.</numerusform>
            <numerusform>All that a reading can reach is read; %n unread paragraphs are reached by none.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Au hasard : %n paragraphe(s), puis un renvoi à un paragraphe vide.</source>
        <translation>
            <numerusform>At random: %n paragraph, then a reference to an empty paragraph.</numerusform>
            <numerusform>At random: %n paragraphs, then a reference to an empty paragraph.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Au hasard : arrêté après %n paragraphe(s), car la lecture tourne en rond : %1</source>
        <translation>
            <numerusform>At random: stopped after %n paragraph, since the reading goes round in circles: %1</numerusform>
            <numerusform>At random: stopped after %n paragraphs, since the reading goes round in circles: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Au hasard : %n paragraphe(s) jusqu&apos;à une fin.</source>
        <translation>
            <numerusform>At random: %n paragraph to an ending.</numerusform>
            <numerusform>At random: %n paragraphs to an ending.</numerusform>
        </translation>
    </message>
    <message>
        <source>Le paragraphe %1 est encore vide.</source>
        <translation>Paragraph %1 is still empty.</translation>
    </message>
    <message>
        <source>%1 : %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 (choix déjà fait)</source>
        <translation>%1 (choice already made)</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>&amp;%1 %2</source>
        <translation>&amp;%1 %2</translation>
    </message>
</context>
<context>
    <name>ReferenceChoices</name>
    <message>
        <source>premier numéro libre</source>
        <translation>first free number</translation>
    </message>
    <message>
        <source>encore vide</source>
        <translation>still empty</translation>
    </message>
    <message>
        <source>%1 : %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>ReferenceDoubts</name>
    <message>
        <source>Il y a une espace de trop avant le numéro : une renumérotation l&apos;écrirait de travers.</source>
        <translation>There is one space too many before the number: a renumbering would write it wrongly.</translation>
    </message>
    <message>
        <source>Il y a un zéro devant le numéro : une renumérotation l&apos;écrirait de travers.</source>
        <translation>There is a zero before the number: a renumbering would write it wrongly.</translation>
    </message>
    <message>
        <source>D&apos;autres chiffres suivent le numéro : le renvoi est lu « %2 », et une renumérotation l&apos;écrirait de travers.</source>
        <translation>Other digits follow the number: the reference is read as “%2”, and a renumbering would write it wrongly.</translation>
    </message>
    <message>
        <source>Ce renvoi n&apos;est pas reconnu : d&apos;autres chiffres suivent le numéro.</source>
        <translation>This reference is not recognised: other digits follow the number.</translation>
    </message>
    <message>
        <source>Ce renvoi n&apos;est pas reconnu : il y a trop d&apos;espaces avant le numéro.</source>
        <translation>This reference is not recognised: there are too many spaces before the number.</translation>
    </message>
    <message>
        <source>Ce renvoi n&apos;est pas reconnu : il faut une espace avant et après « %1 ».</source>
        <translation>This reference is not recognised: “%1” needs a space before and after it.</translation>
    </message>
    <message>
        <source>Ce renvoi n&apos;est pas reconnu : l&apos;espace avant ou après « %1 » est insécable.</source>
        <translation>This reference is not recognised: the space before or after “%1” is a no-break space.</translation>
    </message>
    <message>
        <source>Ce renvoi n&apos;est pas reconnu : une fin de ligne sépare « %1 » du numéro.</source>
        <translation>This reference is not recognised: a line end stands between “%1” and the number.</translation>
    </message>
    <message>
        <source>Ce renvoi n&apos;est pas reconnu : quelque chose sépare « %1 » du numéro.</source>
        <translation>This reference is not recognised: something stands between “%1” and the number.</translation>
    </message>
    <message>
        <source>Ce renvoi n&apos;est pas reconnu : il manque « %1 » devant le numéro.</source>
        <translation>This reference is not recognised: “%1” is missing before the number.</translation>
    </message>
    <message>
        <source>Des numéros seuls sur leur ligne ne sont pas reconnus comme renvois.</source>
        <translation>Numbers alone on their line are not recognised as references.</translation>
    </message>
    <message>
        <source>Ce renvoi n&apos;est pas reconnu : d&apos;autres mots tiennent lieu de « %1 » devant le numéro.</source>
        <translation>This reference is not recognised: other words stand in the place of “%1” before the number.</translation>
    </message>
    <message>
        <source>Il n&apos;y a pas de paragraphe au-delà du 2000.</source>
        <translation>There is no paragraph beyond 2000.</translation>
    </message>
    <message>
        <source>Sans doute un numéro de téléphone, mais lu comme le renvoi « %2 ».</source>
        <translation>Probably a telephone number, but read as the reference “%2”.</translation>
    </message>
    <message>
        <source>Sans doute une date, mais lue comme le renvoi « %2 ».</source>
        <translation>Probably a date, but read as the reference “%2”.</translation>
    </message>
    <message>
        <source>Sans doute un rang, mais lu comme le renvoi « %2 ».</source>
        <translation>Probably a rank, but read as the reference “%2”.</translation>
    </message>
    <message>
        <source>Sans doute une quantité, mais lue comme le renvoi « %2 ».</source>
        <translation>Probably a quantity, but read as the reference “%2”.</translation>
    </message>
    <message>
        <source>Sans doute le paragraphe d&apos;un autre livre, mais lu comme le renvoi « %2 ».</source>
        <translation>Probably the paragraph of another book, but read as the reference “%2”.</translation>
    </message>
</context>
<context>
    <name>ReferenceList</name>
    <message>
        <source>Numéro ou premiers mots</source>
        <translation>Number or first words</translation>
    </message>
</context>
<context>
    <name>ReferenceMends</name>
    <message>
        <source>Écrire « %1 »</source>
        <translation>Write “%1”</translation>
    </message>
    <message>
        <source>Écrire « %1 » avec des espaces ordinaires</source>
        <translation>Write “%1” with ordinary spaces</translation>
    </message>
    <message>
        <source>Écrire « %1 » après une espace</source>
        <translation>Write “%1” after a space</translation>
    </message>
    <message>
        <source>Écrire « %1 » puis « %2 », avec une espace insécable</source>
        <translation>Write “%1” and then “%2”, with a no-break space</translation>
    </message>
    <message>
        <source>Écrire « %1. » puis « %2 »</source>
        <translation>Write “%1.” and then “%2”</translation>
    </message>
    <message>
        <source>Écrire « %1 » sur une même ligne</source>
        <translation>Write “%1” on one line</translation>
    </message>
    <message>
        <source>Pas un renvoi : « %1 » avec une espace insécable</source>
        <translation>Not a reference: “%1” with a no-break space</translation>
    </message>
</context>
<context>
    <name>ReferencePointer</name>
    <message>
        <source>encore vide</source>
        <translation>still empty</translation>
    </message>
    <message>
        <source>%1 : %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>RenumberCommands</name>
    <message>
        <source>Échange %1 et %2</source>
        <translation>Swap %1 and %2</translation>
    </message>
    <message>
        <source>Vous allez échanger un ou deux paragraphes que vous avez déclarés Fixes. Échanger quand même ?</source>
        <translation>You are going to swap one or two paragraphs that you have declared Fixed. Swap them all the same?</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>MasterMix %1 à %2</source>
        <translation>MasterMix %1 to %2</translation>
    </message>
    <message>
        <source>Déplacement %1 à %2 de %3</source>
        <translation>Move %1 to %2 by %3</translation>
    </message>
    <message>
        <source>Combler les Trous %1 à %2</source>
        <translation>Fill the Gaps %1 to %2</translation>
    </message>
    <message>
        <source>Renumérotation...</source>
        <translation>Renumbering...</translation>
    </message>
    <message numerus="yes">
        <source>%n renvoi(s) serai(en)t mal réécrit(s). Les corriger d&apos;abord ?</source>
        <translation>
            <numerusform>%n reference would be badly rewritten. Correct it first?</numerusform>
            <numerusform>%n references would be badly rewritten. Correct them first?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RenumberPlans</name>
    <message>
        <source>Vous devez spécifier des paragraphes entre 1 et %1.</source>
        <translation>You must give paragraphs between 1 and %1.</translation>
    </message>
    <message>
        <source>Zut</source>
        <translation>Oops</translation>
    </message>
    <message>
        <source>Vous devez spécifier deux chiffres différents entre 1 et %1.</source>
        <translation>You must give two different numbers between 1 and %1.</translation>
    </message>
    <message>
        <source>C&apos;est la loi</source>
        <translation>It&apos;s the Law</translation>
    </message>
    <message>
        <source>MasterMix n&apos;aura aucun effet si vous Mélangez 3 paragraphes ou moins.</source>
        <translation>MasterMix will have no effect if you shuffle 3 paragraphs or fewer.</translation>
    </message>
    <message>
        <source>Songez-y</source>
        <translation>Think About It</translation>
    </message>
    <message>
        <source>Tous les paragraphes doivent être (et rester) entre 1 et %1.</source>
        <translation>All the paragraphs must be (and remain) between 1 and %1.</translation>
    </message>
    <message>
        <source>Il ne sert à rien de déplacer de 0 unités.</source>
        <translation>There is no use in moving by 0 places.</translation>
    </message>
    <message>
        <source>L&apos;intervalle doit couvrir au moins 2 paragraphes.</source>
        <translation>The range must cover at least 2 paragraphs.</translation>
    </message>
</context>
<context>
    <name>RenumberPreview</name>
    <message>
        <source>Rien ne change.</source>
        <translation>Nothing changes.</translation>
    </message>
    <message>
        <source>Vers le BAS : %1</source>
        <translation>DOWN: %1</translation>
    </message>
    <message>
        <source>Vers le HAUT : %1</source>
        <translation>UP: %1</translation>
    </message>
    <message>
        <source>Aucun paragraphe ne change de numéro</source>
        <translation>No paragraph changes its number</translation>
    </message>
    <message numerus="yes">
        <source>%n paragraphe(s) change(nt) de numéro</source>
        <translation>
            <numerusform>%n paragraph changes its number</numerusform>
            <numerusform>%n paragraphs change their numbers</numerusform>
        </translation>
    </message>
    <message>
        <source>aucun renvoi à réécrire</source>
        <translation>no reference to rewrite</translation>
    </message>
    <message>
        <source>Aucun paragraphe à mélanger</source>
        <translation>No paragraph to shuffle</translation>
    </message>
    <message numerus="yes">
        <source>%n paragraphe(s) mélangé(s)</source>
        <translation>
            <numerusform>%n paragraph shuffled</numerusform>
            <numerusform>%n paragraphs shuffled</numerusform>
        </translation>
    </message>
    <message>
        <source>aucun ne reste fixe</source>
        <translation>none stays fixed</translation>
    </message>
    <message numerus="yes">
        <source>%n reste(nt) fixe(s)</source>
        <translation>
            <numerusform>%n stays fixed</numerusform>
            <numerusform>%n stay fixed</numerusform>
        </translation>
    </message>
    <message>
        <source>au plus %1</source>
        <translation>at most %1</translation>
    </message>
    <message numerus="yes">
        <source>%n paragraphe(s) exporté(s).</source>
        <translation>
            <numerusform>%n paragraph exported.</numerusform>
            <numerusform>%n paragraphs exported.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n paragraphe(s) exporté(s) et effacé(s)</source>
        <translation>
            <numerusform>%n paragraph exported and erased</numerusform>
            <numerusform>%n paragraphs exported and erased</numerusform>
        </translation>
    </message>
    <message>
        <source>aucun renvoi n&apos;y mène encore</source>
        <translation>no reference leads there any more</translation>
    </message>
    <message numerus="yes">
        <source>%n renvoi(s) dans %1 y mène(nt) encore</source>
        <translation>
            <numerusform>%n reference in %1 still leads there</numerusform>
            <numerusform>%n references in %1 still lead there</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 ; %2.</source>
        <translation>%1; %2.</translation>
    </message>
    <message numerus="yes">
        <source>%n paragraphe(s)</source>
        <translation>
            <numerusform>%n paragraph</numerusform>
            <numerusform>%n paragraphs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n renvoi(s) réécrit(s) dans %1</source>
        <translation>
            <numerusform>%n reference rewritten in %1</numerusform>
            <numerusform>%n references rewritten in %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RtfBox</name>
    <message>
        <source>Ce texte est trop long : un paragraphe ne peut dépasser 32 Mo.</source>
        <translation>This text is too long: a paragraph cannot exceed 32 MB.</translation>
    </message>
    <message>
        <source>Cette action a échoué. Le texte est resté comme il était.</source>
        <translation>This action has failed. The text has stayed as it was.</translation>
    </message>
</context>
<context>
    <name>SearchCommands</name>
    <message>
        <source>Tsé</source>
        <translation>You Know</translation>
    </message>
    <message>
        <source>Vous devez chercher pour quelque chose.</source>
        <translation>You must search for something.</translation>
    </message>
    <message>
        <source>Dernier paragraphe atteint. Poursuivre au premier ?</source>
        <translation>Last paragraph reached. Continue at the first one?</translation>
    </message>
    <message>
        <source>Fin de l&apos;aventure</source>
        <translation>End of the Adventure</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>La case Remplacer est vide. Cette opération effacera le texte cherché partout où il se trouve. Continuer ?</source>
        <translation>The Replace box is empty. This operation will erase the searched text wherever it is found. Continue?</translation>
    </message>
    <message>
        <source>Remplacement...</source>
        <translation>Replacing...</translation>
    </message>
    <message>
        <source>Remplacer Tous « %1 »</source>
        <translation>Replace All “%1”</translation>
    </message>
    <message>
        <source>Recherche...</source>
        <translation>Searching...</translation>
    </message>
    <message>
        <source>le paragraphe %1</source>
        <translation>paragraph %1</translation>
    </message>
    <message numerus="yes">
        <source>%n paragraphe(s)</source>
        <translation>
            <numerusform>%n paragraph</numerusform>
            <numerusform>%n paragraphs</numerusform>
        </translation>
    </message>
    <message>
        <source>Aucune occurrence.</source>
        <translation>No match.</translation>
    </message>
    <message numerus="yes">
        <source>%n occurrence(s) dans %1.</source>
        <translation>
            <numerusform>%n match in %1.</numerusform>
            <numerusform>%n matches in %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>Remplacements effectués : %1.</source>
        <translation>Replacements made: %1.</translation>
    </message>
    <message>
        <source>Cette expression régulière demande trop de travail au paragraphe %1. Simplifiez-la.</source>
        <translation>This regular expression takes too much work at paragraph %1. Simplify it.</translation>
    </message>
    <message>
        <source>Zut</source>
        <translation>Oops</translation>
    </message>
    <message>
        <source>La case Remplacer est vide. Cette opération effacera les occurrences choisies. Continuer ?</source>
        <translation>The Replace box is empty. This operation will erase the chosen matches. Continue?</translation>
    </message>
    <message>
        <source>Occurrences que le texte n&apos;a plus : %1.</source>
        <translation>Matches that the text no longer has: %1.</translation>
    </message>
    <message>
        <source>Remplacer la sélection</source>
        <translation>Replace the selection</translation>
    </message>
</context>
<context>
    <name>SessionRecovery</name>
    <message>
        <source>Songez-y</source>
        <translation>Think About It</translation>
    </message>
    <message>
        <source>Des fichiers de travail laissés par un arrêt brusque d&apos;Usmira sont rangés dans le dossier %1.</source>
        <translation>Working files left by a sudden stop of Usmira have been put into the folder %1.</translation>
    </message>
    <message>
        <source>Une aventure enregistrée qui n&apos;a pas pris la place de l&apos;original est rangée dans le dossier %1.</source>
        <translation>A saved adventure that did not take the place of the original has been put into the folder %1.</translation>
    </message>
    <message>
        <source>L&apos;aventure %1 a changé ou disparu depuis l&apos;arrêt brusque d&apos;Usmira. Les paragraphes non enregistrés sont rangés dans le dossier %2.</source>
        <translation>The adventure %1 has changed or disappeared since the sudden stop of Usmira. The unsaved paragraphs have been put into the folder %2.</translation>
    </message>
    <message>
        <source>Usmira s&apos;est arrêté brusquement. Paragraphes non enregistrés de l&apos;aventure %1 : %2. Voulez-vous les récupérer ? Sinon, ils seront rangés dans le dossier %3.</source>
        <translation>Usmira stopped suddenly. Unsaved paragraphs of the adventure %1: %2. Do you want to recover them? Otherwise they will be put into the folder %3.</translation>
    </message>
    <message>
        <source>Rescapés</source>
        <translation>Survivors</translation>
    </message>
</context>
<context>
    <name>SingleParagraph</name>
    <message>
        <source>Fichiers RTF (*.rtf)|*.rtf</source>
        <translation>RTF files (*.rtf)|*.rtf</translation>
    </message>
    <message>
        <source>Ceci va effacer le texte actuel du paragraphe. Continuer?</source>
        <translation>This will erase the current text of the paragraph. Continue?</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>Ouvrir Fichier RTF</source>
        <translation>Open RTF File</translation>
    </message>
    <message>
        <source>Rien n&apos;a été chargé.</source>
        <translation>Nothing was loaded.</translation>
    </message>
    <message>
        <source>Paragraphe chargé : %1</source>
        <translation>Paragraph loaded: %1</translation>
    </message>
    <message>
        <source>Rien à enregistrer. Tapez quelque chose d&apos;abord.</source>
        <translation>Nothing to save. Type something first.</translation>
    </message>
    <message>
        <source>Tséveudire</source>
        <translation>You Know What I Mean</translation>
    </message>
    <message>
        <source>Enregistrer Fichier RTF</source>
        <translation>Save RTF File</translation>
    </message>
    <message>
        <source>Rien n&apos;a été enregistré.</source>
        <translation>Nothing was saved.</translation>
    </message>
    <message>
        <source>Paragraphe %1 écrit : %2</source>
        <translation>Paragraph %1 written: %2</translation>
    </message>
</context>
<context>
    <name>Spelling</name>
    <message>
        <source>Le dictionnaire « %1 » n&apos;est pas installé : l&apos;orthographe n&apos;est pas vérifiée.</source>
        <translation>The dictionary “%1” is not installed: spelling is not checked.</translation>
    </message>
    <message>
        <source>Ce dictionnaire ne peut pas servir : l&apos;orthographe n&apos;est pas vérifiée.</source>
        <translation>This dictionary cannot be used: spelling is not checked.</translation>
    </message>
    <message>
        <source>Il n&apos;y a pas assez de mémoire pour le dictionnaire.</source>
        <translation>There is not enough memory for the dictionary.</translation>
    </message>
    <message>
        <source>Ce mot n&apos;est pas ajouté : il est trop long, ou il y en a déjà %1.</source>
        <translation>This word is not added: it is too long, or there are %1 already.</translation>
    </message>
    <message>
        <source>Zut</source>
        <translation>Oh dear</translation>
    </message>
</context>
<context>
    <name>SpellingMenu</name>
    <message>
        <source>Orthographe</source>
        <translation>Spelling</translation>
    </message>
    <message>
        <source>Orthographe...</source>
        <translation>Spelling...</translation>
    </message>
    <message>
        <source>Orthographe arrêtée.</source>
        <translation>Spelling stopped.</translation>
    </message>
    <message>
        <source>Correction...</source>
        <translation>Correcting...</translation>
    </message>
    <message>
        <source>Orthographe : « %1 » par « %2 »</source>
        <translation>Spelling: “%1” by “%2”</translation>
    </message>
    <message numerus="yes">
        <source>%n mot(s) remplacé(s).</source>
        <translation>
            <numerusform>%n word replaced.</numerusform>
            <numerusform>%n words replaced.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SpellingModel</name>
    <message>
        <source>Mot</source>
        <translation>Word</translation>
    </message>
    <message>
        <source>Nombre</source>
        <translation>Count</translation>
    </message>
    <message>
        <source>Paragraphes</source>
        <translation>Paragraphs</translation>
    </message>
</context>
<context>
    <name>StartNumbers</name>
    <message>
        <source>Sans texte : %1.</source>
        <translation>Without text: %1.</translation>
    </message>
    <message>
        <source>Le contrôle part donc du %1.</source>
        <translation>So the check starts from %1.</translation>
    </message>
</context>
<context>
    <name>StatisticsText</name>
    <message>
        <source>%1, soit %2 par paragraphe</source>
        <translation>%1, that is %2 per paragraph</translation>
    </message>
    <message numerus="yes">
        <source>%n mot(s)</source>
        <translation>
            <numerusform>%n word</numerusform>
            <numerusform>%n words</numerusform>
        </translation>
    </message>
    <message>
        <source>Le plus long : le %1 (%2)</source>
        <translation>The longest: %1 (%2)</translation>
    </message>
    <message>
        <source>Le plus court : le %1 (%2)</source>
        <translation>The shortest: %1 (%2)</translation>
    </message>
    <message>
        <source>Paragraphes lus jusqu&apos;à la fin : %1 à %2, en moyenne %3</source>
        <translation>Paragraphs read to the end: %1 to %2, on average %3</translation>
    </message>
    <message>
        <source>Fin</source>
        <translation>Ending</translation>
    </message>
    <message>
        <source>Lectures</source>
        <translation>Readings</translation>
    </message>
    <message>
        <source>Longueur</source>
        <translation>Length</translation>
    </message>
    <message>
        <source>Chemin le plus court</source>
        <translation>Shortest path</translation>
    </message>
    <message>
        <source>Passages obligés</source>
        <translation>Unavoidable</translation>
    </message>
    <message>
        <source>Premiers mots</source>
        <translation>First words</translation>
    </message>
    <message>
        <source>Paragraphe</source>
        <translation>Paragraph</translation>
    </message>
    <message>
        <source>Mots</source>
        <translation>Words</translation>
    </message>
    <message>
        <source>Signes</source>
        <translation>Characters</translation>
    </message>
    <message>
        <source>Choix</source>
        <translation>Choices</translation>
    </message>
    <message>
        <source>Paragraphes : %1, dont %2 qu&apos;une lecture peut atteindre</source>
        <translation>Paragraphs: %1, of which a reading can reach %2</translation>
    </message>
    <message>
        <source>Mots : %1</source>
        <translation>Words: %1</translation>
    </message>
    <message>
        <source>Signes, espaces comprises : %1</source>
        <translation>Characters, spaces included: %1</translation>
    </message>
    <message>
        <source>Choix : %1</source>
        <translation>Choices: %1</translation>
    </message>
    <message>
        <source>Fins : %1</source>
        <translation>Endings: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n lecture(s) au hasard, graine %1</source>
        <translation>
            <numerusform>%n random reading, seed %1</numerusform>
            <numerusform>%n random readings, seed %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Une lecture rencontre en moyenne %1 % du livre</source>
        <translation>A reading meets on average %1% of the book</translation>
    </message>
    <message numerus="yes">
        <source>%n lecture(s) prise(s) dans une boucle : %1</source>
        <translation>
            <numerusform>%n reading caught in a loop: %1</numerusform>
            <numerusform>%n readings caught in a loop: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Jamais rencontrés (%1) : %2</source>
        <translation>Never met (%1): %2</translation>
    </message>
    <message>
        <source>Aucune lecture n&apos;arrive au %1</source>
        <translation>No reading gets to %1</translation>
    </message>
    <message>
        <source>Chemin le plus court vers le %1 : %2</source>
        <translation>Shortest path to %1: %2</translation>
    </message>
    <message>
        <source>Aucun passage obligé</source>
        <translation>No unavoidable paragraph</translation>
    </message>
    <message>
        <source>Passages obligés : %1</source>
        <translation>Unavoidable paragraphs: %1</translation>
    </message>
    <message>
        <source>Paragraphes lus</source>
        <translation>Paragraphs read</translation>
    </message>
    <message>
        <source>Paragraphes</source>
        <translation>Paragraphs</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>paragraphe %1 · %2 · %3</source>
        <translation>paragraph %1 · %2 · %3</translation>
    </message>
    <message numerus="yes">
        <source>%n mot(s)</source>
        <translation>
            <numerusform>%n word</numerusform>
            <numerusform>%n words</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n renvoi(s)</source>
        <translation>
            <numerusform>%n reference</numerusform>
            <numerusform>%n references</numerusform>
        </translation>
    </message>
    <message>
        <source>aucune aventure ouverte</source>
        <translation>no adventure open</translation>
    </message>
    <message>
        <source>modifié</source>
        <translation>modified</translation>
    </message>
    <message>
        <source>enregistré</source>
        <translation>saved</translation>
    </message>
</context>
<context>
    <name>StopPanel</name>
    <message>
        <source>Points d&apos;arrêt</source>
        <translation>Stops</translation>
    </message>
    <message>
        <source>Paragraphe où s&apos;arrêter</source>
        <translation>Paragraph to stop at</translation>
    </message>
    <message>
        <source>Paragraphe au-delà duquel l&apos;arbre ne va pas</source>
        <translation>Paragraph beyond which the tree does not go</translation>
    </message>
    <message>
        <source>A&amp;jouter</source>
        <translation>&amp;Add</translation>
    </message>
    <message>
        <source>Arrêter l&apos;arbre à ce paragraphe (touche A sur le graphe)</source>
        <translation>Stop the tree at this paragraph (key A on the graph)</translation>
    </message>
    <message>
        <source>Paragraphes au-delà desquels l&apos;arbre ne va pas</source>
        <translation>Paragraphs beyond which the tree does not go</translation>
    </message>
    <message>
        <source>&amp;Retirer</source>
        <translation>Re&amp;move</translation>
    </message>
    <message>
        <source>Retirer les points d&apos;arrêt choisis (Suppr)</source>
        <translation>Remove the chosen stops (Del)</translation>
    </message>
    <message>
        <source>T&amp;out retirer</source>
        <translation>Remove A&amp;ll</translation>
    </message>
    <message>
        <source>Retirer tous les points d&apos;arrêt</source>
        <translation>Remove all the stops</translation>
    </message>
</context>
<context>
    <name>TabPanel</name>
    <message>
        <source>Mises en Forme</source>
        <translation>Formatting</translation>
    </message>
    <message>
        <source>&amp;Gauche (cm)</source>
        <translation>&amp;Left (cm)</translation>
    </message>
    <message>
        <source>Retrait à Gauche</source>
        <translation>Left Indent</translation>
    </message>
    <message>
        <source>&amp;1re ligne (cm)</source>
        <translation>&amp;1st line (cm)</translation>
    </message>
    <message>
        <source>Retrait de la Première Ligne</source>
        <translation>First Line Indent</translation>
    </message>
    <message>
        <source>&amp;Droite (cm)</source>
        <translation>Ri&amp;ght (cm)</translation>
    </message>
    <message>
        <source>Retrait à Droite</source>
        <translation>Right Indent</translation>
    </message>
    <message>
        <source>&amp;Tabulations (cm)</source>
        <translation>&amp;Tab stops (cm)</translation>
    </message>
    <message>
        <source>Positions des Tabulations</source>
        <translation>Tab Stop Positions</translation>
    </message>
    <message>
        <source>Position de la Nouvelle Tabulation</source>
        <translation>Position of the New Tab Stop</translation>
    </message>
    <message>
        <source>Position de la nouvelle tabulation</source>
        <translation>Position of the new tab stop</translation>
    </message>
    <message>
        <source>A&amp;jouter</source>
        <translation>A&amp;dd</translation>
    </message>
    <message>
        <source>Ajouter la Tabulation</source>
        <translation>Add the Tab Stop</translation>
    </message>
    <message>
        <source>&amp;Retirer</source>
        <translation>Re&amp;move</translation>
    </message>
    <message>
        <source>Retirer la Tabulation Choisie</source>
        <translation>Remove the Chosen Tab Stop</translation>
    </message>
    <message>
        <source>Vider</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>Retirer Toutes les Tabulations</source>
        <translation>Remove All the Tab Stops</translation>
    </message>
    <message>
        <source>(mix)</source>
        <translation>(mix)</translation>
    </message>
    <message>
        <source>(mixed)</source>
        <translation>(mixed)</translation>
    </message>
</context>
<context>
    <name>TargetPhrase</name>
    <message>
        <source>Cette phrase est trop longue.</source>
        <translation>This phrase is too long.</translation>
    </message>
    <message>
        <source>Cette phrase contient un caractère que l&apos;aventure ne peut pas garder.</source>
        <translation>This phrase contains a character that the adventure cannot keep.</translation>
    </message>
    <message>
        <source>Zut</source>
        <translation>Oops</translation>
    </message>
    <message>
        <source>Phrase cible inchangée.</source>
        <translation>Target phrase unchanged.</translation>
    </message>
</context>
<context>
    <name>Translations</name>
    <message>
        <source>fr_FR</source>
        <extracomment>The language of the translation, with its country.</extracomment>
        <translation>en_GB</translation>
    </message>
</context>
<context>
    <name>Typography</name>
    <message>
        <source>Espaces insécables</source>
        <translation>No-break spaces</translation>
    </message>
    <message>
        <source>L&apos;espace devant ; : ! ? et » et derrière « ne se coupe pas en fin de ligne</source>
        <translation>No line ends at the space before ; : ! ? and » and behind «</translation>
    </message>
    <message>
        <source>Espaces qui manquent</source>
        <translation>Missing spaces</translation>
    </message>
    <message>
        <source>Devant ; : ! ? et » et derrière «</source>
        <translation>Before ; : ! ? and » and behind «</translation>
    </message>
    <message>
        <source>Guillemets droits</source>
        <translation>Straight quotation marks</translation>
    </message>
    <message>
        <source>&quot;mot&quot; devient « mot », et “mot” entre guillemets</source>
        <translation>&quot;mot&quot; becomes « mot », and “mot” within others</translation>
    </message>
    <message>
        <source>Apostrophes droites</source>
        <translation>Straight apostrophes</translation>
    </message>
    <message>
        <source>l&apos;eau devient l’eau</source>
        <translation>l&apos;eau becomes l’eau</translation>
    </message>
    <message>
        <source>Points de suspension</source>
        <translation>Dots</translation>
    </message>
    <message>
        <source>Trois points deviennent un seul signe</source>
        <translation>Three full stops become one sign</translation>
    </message>
    <message>
        <source>Tirets de dialogue</source>
        <translation>Dialogue dashes</translation>
    </message>
    <message>
        <source>- Bonjour. devient — Bonjour.</source>
        <translation>- Bonjour. becomes — Bonjour.</translation>
    </message>
    <message>
        <source>Doubles tirets</source>
        <translation>Double hyphens</translation>
    </message>
    <message>
        <source>-- devient –</source>
        <translation>-- becomes –</translation>
    </message>
    <message>
        <source>Espaces en trop</source>
        <translation>Spaces too many</translation>
    </message>
    <message>
        <source>Plusieurs de suite, ou en fin de ligne</source>
        <translation>Several in a row, or at the end of a line</translation>
    </message>
    <message>
        <source>Ligatures</source>
        <translation>Ligatures</translation>
    </message>
    <message>
        <source>coeur devient cœur, ex aequo devient ex æquo</source>
        <translation>coeur becomes cœur, ex aequo becomes ex æquo</translation>
    </message>
    <message>
        <source>Capitales sans accent</source>
        <translation>Capitals without accents</translation>
    </message>
    <message>
        <source>En début de phrase : A l&apos;aube devient À l&apos;aube</source>
        <translation>At the start of a sentence: A l&apos;aube becomes À l&apos;aube</translation>
    </message>
    <message>
        <source>Lignes vides en trop</source>
        <translation>Empty lines too many</translation>
    </message>
    <message>
        <source>De plusieurs de suite il reste une</source>
        <translation>Of several in a row one stays</translation>
    </message>
    <message>
        <source>Renvois douteux</source>
        <translation>Doubtful references</translation>
    </message>
    <message>
        <source>Corrigés comme le fait le menu de l&apos;éditeur : cela peut changer où ils mènent</source>
        <translation>Mended as the editor&apos;s menu does: this may change where they lead</translation>
    </message>
</context>
<context>
    <name>TypographyCommands</name>
    <message>
        <source>Typographie...</source>
        <translation>Typography...</translation>
    </message>
    <message>
        <source>Correction...</source>
        <translation>Correction...</translation>
    </message>
    <message>
        <source>Typographie du Livre</source>
        <translation>Book Typography</translation>
    </message>
    <message numerus="yes">
        <source>%n correction(s) dans %1.</source>
        <translation>
            <numerusform>%n correction in %1.</numerusform>
            <numerusform>%n corrections in %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n paragraphe(s)</source>
        <translation>
            <numerusform>%n paragraph</numerusform>
            <numerusform>%n paragraphs</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TypographyMenu</name>
    <message>
        <source>Arrêté : rien n&apos;a changé.</source>
        <translation>Stopped: nothing has changed.</translation>
    </message>
    <message>
        <source>Endroits laissés, parce que leur texte a changé ou qu&apos;un renvoi en serait devenu un autre : %1.</source>
        <translation>Places left, as their text has changed or a reference would have become another: %1.</translation>
    </message>
    <message>
        <source>Typographie du Livre</source>
        <translation>Book Typography</translation>
    </message>
</context>
<context>
    <name>TypographyModel</name>
    <message>
        <source>Paragraphe %1 (%2)</source>
        <translation>Paragraph %1 (%2)</translation>
    </message>
    <message>
        <source>À changer</source>
        <translation>To change</translation>
    </message>
    <message>
        <source>Avant</source>
        <translation>Before</translation>
    </message>
    <message>
        <source>Après</source>
        <translation>After</translation>
    </message>
</context>
<context>
    <name>UniformFormatting</name>
    <message>
        <source>Mise en forme...</source>
        <translation>Formatting...</translation>
    </message>
    <message>
        <source>Uniformiser</source>
        <translation>Make Uniform</translation>
    </message>
    <message>
        <source>Comptage...</source>
        <translation>Counting...</translation>
    </message>
    <message>
        <source>Aucun paragraphe ne change.</source>
        <translation>No paragraph changes.</translation>
    </message>
    <message numerus="yes">
        <source>%n paragraphe(s) change(nt).</source>
        <translation>
            <numerusform>%n paragraph changes.</numerusform>
            <numerusform>%n paragraphs change.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WordMenu</name>
    <message>
        <source>Recherche de suggestions...</source>
        <translation>Looking for suggestions...</translation>
    </message>
    <message>
        <source>Aucune suggestion</source>
        <translation>No suggestion</translation>
    </message>
    <message>
        <source>Ajouter à l&apos;aventure</source>
        <translation>Add to the adventure</translation>
    </message>
    <message>
        <source>Ajouter à mon dictionnaire</source>
        <translation>Add to my dictionary</translation>
    </message>
    <message>
        <source>Ignorer ici</source>
        <translation>Ignore here</translation>
    </message>
    <message>
        <source>Synonymes</source>
        <translation>Synonyms</translation>
    </message>
</context>
<context>
    <name>WorkBar</name>
    <message>
        <source>%p % (Échap pour arrêter)</source>
        <translation>%p% (Esc to stop)</translation>
    </message>
</context>
<context>
    <name>blockMove</name>
    <message>
        <source>Block Move</source>
        <translation>Block Move</translation>
    </message>
    <message>
        <source>Déplacer tous les paragraphes entre</source>
        <translation>Move all the paragraphs between</translation>
    </message>
    <message>
        <source>Premier paragraphe</source>
        <translation>First paragraph</translation>
    </message>
    <message>
        <source>et</source>
        <translation>and</translation>
    </message>
    <message>
        <source>Dernier paragraphe</source>
        <translation>Last paragraph</translation>
    </message>
    <message>
        <source>de</source>
        <translation>by</translation>
    </message>
    <message>
        <source>Nombre d&apos;unités</source>
        <translation>Number of places</translation>
    </message>
    <message>
        <source>unités</source>
        <translation>places</translation>
    </message>
    <message>
        <source>Le texte de tous les paragraphes sera modifié pour se conformer aux nouveaux numéros.</source>
        <translation>The text of all the paragraphs will be changed to match the new numbers.</translation>
    </message>
    <message>
        <source>Annuler</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Vers le BAS</source>
        <translation>DOWN</translation>
    </message>
    <message>
        <source>Vers le HAUT</source>
        <translation>UP</translation>
    </message>
</context>
<context>
    <name>bookCheck</name>
    <message>
        <source>Contrôle du Livre</source>
        <translation>Book Check</translation>
    </message>
    <message>
        <source>Montrer les fautes : ce qui arrêterait un lecteur</source>
        <translation>Show the faults: what would stop a reader</translation>
    </message>
    <message>
        <source>Montrer les remarques : ce qu&apos;il vaut mieux regarder</source>
        <translation>Show the remarks: what is worth a look</translation>
    </message>
    <message>
        <source>Montrer les notes : ce qui reste à faire, les textes très courts</source>
        <translation>Show the notes: what remains to be done, very short texts</translation>
    </message>
    <message>
        <source>Filtre</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Filtrer par mots ou par numéro</source>
        <translation>Filter by words or by number</translation>
    </message>
    <message>
        <source>Ne montrer que ce qui contient ces mots, sans égard aux accents ni aux majuscules</source>
        <translation>Show only what contains these words, whatever the accents and capitals</translation>
    </message>
    <message>
        <source>&amp;Voir les acceptés</source>
        <translation>Show acce&amp;pted</translation>
    </message>
    <message>
        <source>Montrer aussi, en plus pâle, ce qui a été accepté</source>
        <translation>Show as well, in a paler colour, what has been accepted</translation>
    </message>
    <message>
        <source>Constats, par sortes</source>
        <translation>Findings, by kind</translation>
    </message>
    <message>
        <source>Entrée montre l&apos;endroit dans le texte</source>
        <translation>Enter shows the place in the text</translation>
    </message>
    <message>
        <source>&amp;Départs :</source>
        <translation>&amp;Starts:</translation>
    </message>
    <message>
        <source>Les numéros où une lecture commence, séparés par des espaces ; Entrée les prend en compte</source>
        <translation>The numbers where a reading begins, separated by spaces; Enter takes them into account</translation>
    </message>
    <message>
        <source>Ne plus &amp;accepter</source>
        <translation>No longer &amp;accept</translation>
    </message>
    <message>
        <source>&amp;Corriger</source>
        <translation>Co&amp;rrect</translation>
    </message>
    <message>
        <source>Corriger les renvois choisis dans la liste, tous ou aucun</source>
        <translation>Correct the references chosen in the list, all or none</translation>
    </message>
    <message>
        <source>&amp;Enregistrer la liste...</source>
        <translation>Save the &amp;list...</translation>
    </message>
    <message>
        <source>Enregistrer ce que la liste montre, comme texte ou pour un tableur</source>
        <translation>Save what the list shows, as text or for a spreadsheet</translation>
    </message>
    <message>
        <source>&amp;Fermer</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>Fermer cette fenêtre (Échap)</source>
        <translation>Close this window (Esc)</translation>
    </message>
    <message>
        <source>&amp;Texte...</source>
        <translation>&amp;Text...</translation>
    </message>
    <message>
        <source>Table &amp;CSV...</source>
        <translation>&amp;CSV table...</translation>
    </message>
    <message>
        <source>Fichiers texte</source>
        <translation>Text files</translation>
    </message>
    <message>
        <source>Fichiers CSV</source>
        <translation>CSV files</translation>
    </message>
    <message>
        <source>Fa&amp;utes</source>
        <translation>Fa&amp;ults</translation>
    </message>
    <message>
        <source>Re&amp;marques</source>
        <translation>Re&amp;marks</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>&amp;Notes</translation>
    </message>
    <message>
        <source>&amp;Accepter</source>
        <translation>&amp;Accept</translation>
    </message>
    <message>
        <source>Signaler de nouveau ce qui est choisi dans la liste</source>
        <translation>Report again what is chosen in the list</translation>
    </message>
    <message>
        <source>Ne plus signaler ce qui est choisi dans la liste, tant que la phrase reste la même</source>
        <translation>No longer report what is chosen in the list, as long as the sentence stays the same</translation>
    </message>
    <message>
        <source>Paragraphes illisibles : %1</source>
        <translation>Unreadable paragraphs: %1</translation>
    </message>
    <message>
        <source>Contrôle en cours...</source>
        <translation>Checking...</translation>
    </message>
    <message>
        <source>Aucune aventure n&apos;est ouverte.</source>
        <translation>No adventure is open.</translation>
    </message>
    <message numerus="yes">
        <source>%n constat(s) choisi(s).</source>
        <translation>
            <numerusform>%n finding chosen.</numerusform>
            <numerusform>%n findings chosen.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 : %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Corriger : %1.</source>
        <translation>Correct: %1.</translation>
    </message>
    <message>
        <source>Rien à signaler dans ce livre.</source>
        <translation>Nothing to report in this book.</translation>
    </message>
    <message>
        <source>« %1 » n&apos;est pas un numéro de 1 à 2000 : rien n&apos;a changé.</source>
        <translation>“%1” is not a number from 1 to 2000: nothing has changed.</translation>
    </message>
    <message>
        <source>Enregistrer la Liste</source>
        <translation>Save the List</translation>
    </message>
    <message>
        <source>%1 constats</source>
        <translation>%1 findings</translation>
    </message>
    <message>
        <source>Enregistré : %1</source>
        <translation>Saved: %1</translation>
    </message>
    <message>
        <source>&amp;Grammaire</source>
        <translation>&amp;Grammar</translation>
    </message>
    <message>
        <source>Faire lire le livre par grammalecte, à côté d&apos;Usmira, ou l&apos;arrêter</source>
        <translation>Have grammalecte read the book, beside Usmira, or stop it</translation>
    </message>
    <message>
        <source>Arrê&amp;ter</source>
        <translation>S&amp;top</translation>
    </message>
</context>
<context>
    <name>bookFactsDlog</name>
    <message>
        <source>Le Livre</source>
        <translation>The Book</translation>
    </message>
    <message>
        <source>&amp;Titre :</source>
        <translation>&amp;Title:</translation>
    </message>
    <message>
        <source>A&amp;uteur :</source>
        <translation>A&amp;uthor:</translation>
    </message>
    <message>
        <source>&amp;Langue :</source>
        <translation>&amp;Language:</translation>
    </message>
    <message>
        <source>&amp;Dédicace :</source>
        <translation>&amp;Dedication:</translation>
    </message>
    <message>
        <source>Couverture</source>
        <translation>Cover</translation>
    </message>
    <message>
        <source>&amp;Couverture...</source>
        <translation>&amp;Cover...</translation>
    </message>
    <message>
        <source>&amp;Enlever</source>
        <translation>&amp;Remove</translation>
    </message>
    <message>
        <source>Texte a&amp;vant le premier paragraphe :</source>
        <translation>Text &amp;before the first paragraph:</translation>
    </message>
    <message>
        <source>Texte a&amp;près le dernier paragraphe :</source>
        <translation>Text a&amp;fter the last paragraph:</translation>
    </message>
    <message>
        <source>Annuler</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Garder</source>
        <translation>Keep</translation>
    </message>
    <message>
        <source>Français</source>
        <translation>French</translation>
    </message>
    <message>
        <source>Anglais</source>
        <translation>English</translation>
    </message>
    <message>
        <source>Allemand</source>
        <translation>German</translation>
    </message>
    <message>
        <source>Espagnol</source>
        <translation>Spanish</translation>
    </message>
    <message>
        <source>Italien</source>
        <translation>Italian</translation>
    </message>
    <message>
        <source>Néerlandais</source>
        <translation>Dutch</translation>
    </message>
    <message>
        <source>Portugais</source>
        <translation>Portuguese</translation>
    </message>
    <message>
        <source>La langue se donne par son nom ou par un code comme fr, en ou fr-CA.</source>
        <translation>The language is given by its name or by a code such as fr, en or fr-CA.</translation>
    </message>
    <message>
        <source>Zut</source>
        <translation>Oops</translation>
    </message>
    <message>
        <source>Garder ce que vous avez changé ?</source>
        <translation>Keep what you have changed?</translation>
    </message>
    <message>
        <source>Songez-y</source>
        <translation>Think About It</translation>
    </message>
</context>
<context>
    <name>bookPdfDlog</name>
    <message>
        <source>Livre Imprimable</source>
        <translation>Printed Book</translation>
    </message>
    <message>
        <source>Mettre en pages les paragraphes</source>
        <translation>Set in pages the paragraphs</translation>
    </message>
    <message>
        <source>Premier paragraphe</source>
        <translation>First paragraph</translation>
    </message>
    <message>
        <source>à</source>
        <translation>to</translation>
    </message>
    <message>
        <source>Dernier paragraphe</source>
        <translation>Last paragraph</translation>
    </message>
    <message>
        <source>Le &amp;Livre...</source>
        <translation>The &amp;Book...</translation>
    </message>
    <message>
        <source>Aperçu de deux pages</source>
        <translation>Preview of two pages</translation>
    </message>
    <message>
        <source>Pages précédentes (Page préc.)</source>
        <translation>Pages before (Page Up)</translation>
    </message>
    <message>
        <source>Pages suivantes (Page suiv.)</source>
        <translation>Next pages (Page Down)</translation>
    </message>
    <message>
        <source>Avancement du travail</source>
        <translation>Progress of the work</translation>
    </message>
    <message>
        <source>Annuler</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>&amp;Imprimer...</source>
        <translation>&amp;Print...</translation>
    </message>
    <message>
        <source>Créer le PDF...</source>
        <translation>Create the PDF...</translation>
    </message>
    <message>
        <source>Enregistrer Livre Imprimable</source>
        <translation>Save Printed Book</translation>
    </message>
    <message>
        <source>Fichiers PDF (*.pdf)|*.pdf</source>
        <translation>PDF files (*.pdf)|*.pdf</translation>
    </message>
    <message>
        <source>Zut</source>
        <translation>Oops</translation>
    </message>
</context>
<context>
    <name>bookSpelling</name>
    <message>
        <source>Orthographe du Livre</source>
        <translation>Book Spelling</translation>
    </message>
    <message>
        <source>Mots douteux</source>
        <translation>Doubtful words</translation>
    </message>
    <message>
        <source>Entrée montre le premier endroit dans le texte</source>
        <translation>Enter shows the first place in the text</translation>
    </message>
    <message>
        <source>Endroits du mot choisi</source>
        <translation>Places of the chosen word</translation>
    </message>
    <message>
        <source>Entrée montre l&apos;endroit dans le texte</source>
        <translation>Enter shows the place in the text</translation>
    </message>
    <message>
        <source>&amp;Remplacer par :</source>
        <translation>&amp;Replace by:</translation>
    </message>
    <message>
        <source>Une suggestion, ou ce que vous tapez</source>
        <translation>A suggestion, or what you type</translation>
    </message>
    <message>
        <source>Là où c&apos;est &amp;choisi</source>
        <translation>Where &amp;chosen</translation>
    </message>
    <message>
        <source>Remplacer aux endroits choisis dans la liste, tous ou aucun</source>
        <translation>Replace at the places chosen in the list, all or none</translation>
    </message>
    <message>
        <source>Par&amp;tout</source>
        <translation>&amp;Everywhere</translation>
    </message>
    <message>
        <source>Remplacer ce mot dans toute l&apos;aventure</source>
        <translation>Replace this word in the whole adventure</translation>
    </message>
    <message>
        <source>Ajouter à l&apos;&amp;aventure</source>
        <translation>Add to the &amp;adventure</translation>
    </message>
    <message>
        <source>Ce mot est juste dans toute cette aventure, en capitales aussi</source>
        <translation>This word is right in all of this adventure, in capitals too</translation>
    </message>
    <message>
        <source>Ajouter à mon &amp;dictionnaire</source>
        <translation>Add to my &amp;dictionary</translation>
    </message>
    <message>
        <source>Ce mot est juste dans toutes vos aventures</source>
        <translation>This word is right in all your adventures</translation>
    </message>
    <message>
        <source>&amp;Ignorer là</source>
        <translation>&amp;Ignore there</translation>
    </message>
    <message>
        <source>Ce mot est juste dans les paragraphes choisis dans la liste</source>
        <translation>This word is right in the paragraphs chosen in the list</translation>
    </message>
    <message>
        <source>&amp;Fermer</source>
        <translation>C&amp;lose</translation>
    </message>
    <message>
        <source>Fermer cette fenêtre (Échap)</source>
        <translation>Close this window (Esc)</translation>
    </message>
    <message>
        <source>Recherche de suggestions...</source>
        <translation>Looking for suggestions...</translation>
    </message>
    <message>
        <source>Aucune suggestion</source>
        <translation>No suggestion</translation>
    </message>
    <message>
        <source>Aucun mot douteux.</source>
        <translation>No doubtful word.</translation>
    </message>
    <message numerus="yes">
        <source>%n mot(s) douteux</source>
        <translation>
            <numerusform>%n doubtful word</numerusform>
            <numerusform>%n doubtful words</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>en %n endroit(s).</source>
        <translation>
            <numerusform>at %n place.</numerusform>
            <numerusform>at %n places.</numerusform>
        </translation>
    </message>
    <message>
        <source>Les %1 premiers endroits du mot choisi.</source>
        <translation>The first %1 places of the chosen word.</translation>
    </message>
    <message>
        <source>Paragraphes illisibles : %1</source>
        <translation>Unreadable paragraphs: %1</translation>
    </message>
    <message>
        <source>Par quoi remplacer ce mot ?</source>
        <translation>Replace this word with what?</translation>
    </message>
</context>
<context>
    <name>bookTypography</name>
    <message>
        <source>Typographie du Livre</source>
        <translation>Book Typography</translation>
    </message>
    <message>
        <source>Sortes</source>
        <translation>Kinds</translation>
    </message>
    <message>
        <source>Devant ; ! et ? :</source>
        <translation>Before ; ! and ?:</translation>
    </message>
    <message>
        <source>Espace &amp;insécable</source>
        <translation>No-brea&amp;k space</translation>
    </message>
    <message>
        <source>Espace fi&amp;ne insécable</source>
        <translation>&amp;Narrow no-break space</translation>
    </message>
    <message>
        <source>&amp;Paragraphe 0 aussi</source>
        <translation>&amp;Paragraph 0 too</translation>
    </message>
    <message>
        <source>Celui des notes de l&apos;auteur</source>
        <translation>That of the author&apos;s notes</translation>
    </message>
    <message>
        <source>Ce qui change, par paragraphes</source>
        <translation>What changes, by paragraphs</translation>
    </message>
    <message>
        <source>Espace choisit ou laisse, Entrée montre l&apos;endroit dans le texte</source>
        <translation>Space chooses or leaves, Enter shows the place in the text</translation>
    </message>
    <message>
        <source>Avancement du travail</source>
        <translation>Progress of the work</translation>
    </message>
    <message>
        <source>&amp;Appliquer</source>
        <translation>&amp;Apply</translation>
    </message>
    <message>
        <source>Faire tout ce qui est choisi, ou rien ; Ctrl+Alt+Z l&apos;annule</source>
        <translation>Do all that is chosen, or nothing; Ctrl+Alt+Z takes it back</translation>
    </message>
    <message>
        <source>&amp;Fermer</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>Fermer cette fenêtre (Échap)</source>
        <translation>Close this window (Esc)</translation>
    </message>
    <message>
        <source>Toutes les sortes : %1</source>
        <translation>All kinds: %1</translation>
    </message>
    <message>
        <source>%1 : %2 sur %3</source>
        <translation>%1: %2 of %3</translation>
    </message>
    <message>
        <source>%1 : %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Paragraphes encore à lire : %1</source>
        <translation>Paragraphs still to be read: %1</translation>
    </message>
    <message>
        <source>Rien à changer dans ce livre.</source>
        <translation>Nothing to change in this book.</translation>
    </message>
    <message>
        <source>Choisi : %1.</source>
        <translation>Chosen: %1.</translation>
    </message>
    <message>
        <source>Paragraphes illisibles : %1</source>
        <translation>Unreadable paragraphs: %1</translation>
    </message>
    <message>
        <source>␣ espace, ⍽ espace insécable, ⍽ı fine insécable, ¶ fin de ligne</source>
        <translation>␣ space, ⍽ no-break space, ⍽ı narrow no-break space, ¶ end of line</translation>
    </message>
</context>
<context>
    <name>convertRTF</name>
    <message>
        <source>Conversion au RTF</source>
        <translation>Conversion to RTF</translation>
    </message>
    <message>
        <source>Créer un document RTF contenant les paragraphes</source>
        <translation>Create an RTF document with the paragraphs from</translation>
    </message>
    <message>
        <source>Premier paragraphe</source>
        <translation>First paragraph</translation>
    </message>
    <message>
        <source>à</source>
        <translation>to</translation>
    </message>
    <message>
        <source>Dernier paragraphe</source>
        <translation>Last paragraph</translation>
    </message>
    <message>
        <source>Numéros</source>
        <translation>Numbers</translation>
    </message>
    <message>
        <source>Police</source>
        <translation>Font</translation>
    </message>
    <message>
        <source>Taille</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Gras</source>
        <translation>Bold</translation>
    </message>
    <message>
        <source>Italiques</source>
        <translation>Italic</translation>
    </message>
    <message>
        <source>Soulignés</source>
        <translation>Underlined</translation>
    </message>
    <message>
        <source>Centrés</source>
        <translation>Centred</translation>
    </message>
    <message>
        <source>L&apos;efficacité de l&apos;opération diminue rapidement au-delà de 500 paragraphes. Il est suggéré de découper une longue aventure en tranches et de réunir les morceaux avec un logiciel de traitement de texte professionnel.</source>
        <translation>The operation quickly becomes less efficient beyond 500 paragraphs. It is advisable to cut a long adventure into slices and to put the pieces together with a professional word processor.</translation>
    </message>
    <message>
        <source>Conversion en Cours Veuillez Attendre</source>
        <translation>Conversion in Progress, Please Wait</translation>
    </message>
    <message>
        <source>Avancement du travail</source>
        <translation>Progress of the work</translation>
    </message>
    <message>
        <source>Annuler</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Convertir</source>
        <translation>Convert</translation>
    </message>
    <message>
        <source>Enregistrer Fichier RTF</source>
        <translation>Save RTF File</translation>
    </message>
    <message>
        <source>Fichiers RTF (*.rtf)|*.rtf</source>
        <translation>RTF files (*.rtf)|*.rtf</translation>
    </message>
    <message>
        <source>Chaque renvoi mène à son paragraphe, dans un traitement de texte qui suit les liens</source>
        <translation>Every reference leads to its paragraph, in a word processor that follows links</translation>
    </message>
    <message>
        <source>&amp;Liens</source>
        <translation>&amp;Links</translation>
    </message>
</context>
<context>
    <name>copiesDlog</name>
    <message>
        <source>Revenir à une copie</source>
        <translation>Return to a Copy</translation>
    </message>
    <message>
        <source>L&apos;aventure telle qu&apos;elle était avant ces enregistrements.
La copie s&apos;ouvre sous un autre nom, à côté de l&apos;aventure, qui reste ce qu&apos;elle est.</source>
        <translation>The adventure as it was before these saves.
The copy opens under another name, beside the adventure, which stays what it is.</translation>
    </message>
    <message>
        <source>Il n&apos;y a pas encore de copie de cette aventure.
Usmira en garde une avant le premier enregistrement qui suit chaque ouverture.</source>
        <translation>There is no copy of this adventure yet.
Usmira keeps one before the first save that follows each opening.</translation>
    </message>
    <message>
        <source>Copies, la plus récente en premier</source>
        <translation>Copies, the most recent first</translation>
    </message>
    <message>
        <source>Avant l&apos;enregistrement du</source>
        <translation>Before the save of</translation>
    </message>
    <message>
        <source>Taille</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Paragraphes</source>
        <translation>Paragraphs</translation>
    </message>
    <message>
        <source>Annuler</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Ouvrir</source>
        <translation>Open</translation>
    </message>
</context>
<context>
    <name>epubDlog</name>
    <message>
        <source>Livre Numérique</source>
        <translation>E-book</translation>
    </message>
    <message>
        <source>Créer un livre numérique (EPUB) contenant les paragraphes</source>
        <translation>Create an e-book (EPUB) with the paragraphs</translation>
    </message>
    <message>
        <source>Premier paragraphe</source>
        <translation>First paragraph</translation>
    </message>
    <message>
        <source>à</source>
        <translation>to</translation>
    </message>
    <message>
        <source>Dernier paragraphe</source>
        <translation>Last paragraph</translation>
    </message>
    <message>
        <source>Le &amp;Livre...</source>
        <translation>The &amp;Book...</translation>
    </message>
    <message>
        <source>Un fichier par &amp;centaine de paragraphes</source>
        <translation>One file per &amp;hundred paragraphs</translation>
    </message>
    <message>
        <source>Un fichier par &amp;paragraphe</source>
        <translation>One file per &amp;paragraph</translation>
    </message>
    <message>
        <source>Avancement du travail</source>
        <translation>Progress of the work</translation>
    </message>
    <message>
        <source>Annuler</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Créer</source>
        <translation>Create</translation>
    </message>
    <message>
        <source>Enregistrer Livre Numérique</source>
        <translation>Save E-book</translation>
    </message>
    <message>
        <source>Livres numériques (*.epub)|*.epub</source>
        <translation>E-books (*.epub)|*.epub</translation>
    </message>
</context>
<context>
    <name>exchangeDlog</name>
    <message>
        <source>Section Swap</source>
        <translation>Swap</translation>
    </message>
    <message>
        <source>Échanger les paragraphes</source>
        <translation>Swap the paragraphs</translation>
    </message>
    <message>
        <source>Premier paragraphe</source>
        <translation>First paragraph</translation>
    </message>
    <message>
        <source>et</source>
        <translation>and</translation>
    </message>
    <message>
        <source>Second paragraphe</source>
        <translation>Second paragraph</translation>
    </message>
    <message>
        <source>et tous les rendez-vous qui y mènent.</source>
        <translation>and all the references that lead to them.</translation>
    </message>
    <message>
        <source>Annuler</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Échanger</source>
        <translation>Swap</translation>
    </message>
</context>
<context>
    <name>formUsmira</name>
    <message>
        <source>Usmira - Aucun Fichier Ouvert</source>
        <translation>Usmira - No File Open</translation>
    </message>
    <message>
        <source>Nouvelle Aventure (Ctrl+N)</source>
        <translation>New Adventure (Ctrl+N)</translation>
    </message>
    <message>
        <source>Nouvelle Aventure</source>
        <translation>New Adventure</translation>
    </message>
    <message>
        <source>Nouvelle</source>
        <translation>New</translation>
    </message>
    <message>
        <source>Ouvrir une Aventure (Ctrl+O)</source>
        <translation>Open an Adventure (Ctrl+O)</translation>
    </message>
    <message>
        <source>Ouvrir une Aventure</source>
        <translation>Open an Adventure</translation>
    </message>
    <message>
        <source>Ouvrir</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Enregistrer l&apos;Aventure (Ctrl+S)</source>
        <translation>Save the Adventure (Ctrl+S)</translation>
    </message>
    <message>
        <source>Enregistrer l&apos;Aventure</source>
        <translation>Save the Adventure</translation>
    </message>
    <message>
        <source>Enregistrer</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>&amp;Paragraphe</source>
        <translation>&amp;Paragraph</translation>
    </message>
    <message>
        <source>Vide</source>
        <translation>Empty</translation>
    </message>
    <message>
        <source>Numéro du Paragraphe : Entrée pour y aller</source>
        <translation>Paragraph Number: Enter to Go There</translation>
    </message>
    <message>
        <source>FIXE</source>
        <translation>FIXED</translation>
    </message>
    <message>
        <source>Intouchable par MasterMix</source>
        <translation>Untouchable by MasterMix</translation>
    </message>
    <message>
        <source>&lt;&lt;</source>
        <translation>&lt;&lt;</translation>
    </message>
    <message>
        <source>Premier</source>
        <translation>First</translation>
    </message>
    <message>
        <source>–T</source>
        <translation>–T</translation>
    </message>
    <message>
        <source>Tapé Précédent</source>
        <translation>Previous Typed</translation>
    </message>
    <message>
        <source>–V</source>
        <translation>–E</translation>
    </message>
    <message>
        <source>Vide Précédent</source>
        <translation>Previous Empty</translation>
    </message>
    <message>
        <source>–1</source>
        <translation>–1</translation>
    </message>
    <message>
        <source>Précédent</source>
        <translation>Previous</translation>
    </message>
    <message>
        <source>+1</source>
        <translation>+1</translation>
    </message>
    <message>
        <source>Suivant</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>+V</source>
        <translation>+E</translation>
    </message>
    <message>
        <source>Vide Suivant</source>
        <translation>Next Empty</translation>
    </message>
    <message>
        <source>+T</source>
        <translation>+T</translation>
    </message>
    <message>
        <source>Tapé Suivant</source>
        <translation>Next Typed</translation>
    </message>
    <message>
        <source>&gt;&gt;</source>
        <translation>&gt;&gt;</translation>
    </message>
    <message>
        <source>Dernier</source>
        <translation>Last</translation>
    </message>
    <message>
        <source>Visités :</source>
        <translation>Visited:</translation>
    </message>
    <message>
        <source>Vider la Liste</source>
        <translation>Clear the List</translation>
    </message>
    <message>
        <source>Vider</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>Paragraphes Récemment Visités</source>
        <translation>Recently Visited Paragraphs</translation>
    </message>
    <message>
        <source>Ce qui mène ici:</source>
        <translation>What leads here:</translation>
    </message>
    <message>
        <source>Paragraphes qui Mènent à Celui-ci</source>
        <translation>Paragraphs That Lead to This One</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Loading...</translation>
    </message>
    <message>
        <source>Avancement du travail</source>
        <translation>Progress of the work</translation>
    </message>
    <message>
        <source>Texte du paragraphe</source>
        <translation>Text of the paragraph</translation>
    </message>
    <message>
        <source>&amp;Aventures</source>
        <translation>&amp;Adventures</translation>
    </message>
    <message>
        <source>&amp;Édition</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>&amp;Navigation</source>
        <translation>&amp;Navigation</translation>
    </message>
    <message>
        <source>&amp;Fonctions</source>
        <translation>&amp;Functions</translation>
    </message>
    <message>
        <source>&amp;Conversions</source>
        <translation>&amp;Conversions</translation>
    </message>
    <message>
        <source>A&amp;ide</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>&amp;Nouvelle...</source>
        <translation>&amp;New...</translation>
    </message>
    <message>
        <source>&amp;Ouvrir...</source>
        <translation>&amp;Open...</translation>
    </message>
    <message>
        <source>Enre&amp;gistrer</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>Enregistrer une &amp;Copie Sous...</source>
        <translation>Save a &amp;Copy As...</translation>
    </message>
    <message>
        <source>&amp;Revenir à une copie...</source>
        <translation>&amp;Return to a Copy...</translation>
    </message>
    <message>
        <source>E&amp;xporter (Scinder)...</source>
        <translation>&amp;Export (Split)...</translation>
    </message>
    <message>
        <source>Fusion (&amp;Importer)...</source>
        <translation>&amp;Merge (Import)...</translation>
    </message>
    <message>
        <source>&amp;Quitter</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>&amp;Annuler</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>&amp;Rétablir</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>Historique du &amp;Livre...</source>
        <translation>Book &amp;History...</translation>
    </message>
    <message>
        <source>Ta&amp;ble des numéros...</source>
        <translation>Num&amp;ber Table...</translation>
    </message>
    <message>
        <source>Cou&amp;per</source>
        <translation>Cu&amp;t</translation>
    </message>
    <message>
        <source>&amp;Copier</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>C&amp;oller</source>
        <translation>&amp;Paste</translation>
    </message>
    <message>
        <source>Coller sans &amp;Mise en Forme</source>
        <translation>Paste Without &amp;Formatting</translation>
    </message>
    <message>
        <source>Tout &amp;Sélectionner</source>
        <translation>Select &amp;All</translation>
    </message>
    <message>
        <source>Recherc&amp;her et Remplacer...</source>
        <translation>S&amp;earch and Replace...</translation>
    </message>
    <message>
        <source>Rechercher la Su&amp;ite</source>
        <translation>Search Ne&amp;xt</translation>
    </message>
    <message>
        <source>Pr&amp;emier Paragraphe</source>
        <translation>&amp;First Paragraph</translation>
    </message>
    <message>
        <source>Der&amp;nier Paragraphe</source>
        <translation>&amp;Last Paragraph</translation>
    </message>
    <message>
        <source>&amp;Suivant</source>
        <translation>&amp;Next</translation>
    </message>
    <message>
        <source>&amp;Précédent</source>
        <translation>&amp;Previous</translation>
    </message>
    <message>
        <source>&amp;Tapé Suivant</source>
        <translation>Next &amp;Typed</translation>
    </message>
    <message>
        <source>&amp;Vide Suivant</source>
        <translation>Next &amp;Empty</translation>
    </message>
    <message>
        <source>Prochain Non &amp;Réservé</source>
        <translation>Next Not &amp;Reserved</translation>
    </message>
    <message>
        <source>Paragraphe Visité Avant</source>
        <translation>Paragraph Visited Before</translation>
    </message>
    <message>
        <source>Suivre le Renvoi</source>
        <translation>Follow the Reference</translation>
    </message>
    <message>
        <source>Choisir un Numéro...</source>
        <translation>Choose a Number...</translation>
    </message>
    <message>
        <source>Paragraphe Visité Après</source>
        <translation>Paragraph Visited After</translation>
    </message>
    <message>
        <source>&amp;MasterMix...</source>
        <translation>&amp;MasterMix...</translation>
    </message>
    <message>
        <source>&amp;Échange...</source>
        <translation>&amp;Swap...</translation>
    </message>
    <message>
        <source>Déplacement en &amp;Bloc...</source>
        <translation>&amp;Block Move...</translation>
    </message>
    <message>
        <source>Combler les &amp;Trous...</source>
        <translation>&amp;Fill the Gaps...</translation>
    </message>
    <message>
        <source>&amp;Graphes</source>
        <translation>&amp;Graphs</translation>
    </message>
    <message>
        <source>Grille &amp;des Paragraphes</source>
        <translation>Paragraph Gri&amp;d</translation>
    </message>
    <message>
        <source>Détecteur de &amp;Proximité...</source>
        <translation>&amp;Proximity Scan...</translation>
    </message>
    <message>
        <source>Co&amp;ntrôle du Livre</source>
        <translation>Book &amp;Check</translation>
    </message>
    <message>
        <source>Constat Su&amp;ivant</source>
        <translation>Ne&amp;xt Finding</translation>
    </message>
    <message>
        <source>Constat P&amp;récédent</source>
        <translation>Previous F&amp;inding</translation>
    </message>
    <message>
        <source>St&amp;atistiques</source>
        <translation>St&amp;atistics</translation>
    </message>
    <message>
        <source>Le livre en chiffres et en lectures au hasard</source>
        <translation>The book in figures and in random readings</translation>
    </message>
    <message>
        <source>&amp;Lecture d&apos;Essai</source>
        <translation>&amp;Trial Reading</translation>
    </message>
    <message>
        <source>Lecture d&apos;&amp;Essai depuis le Début</source>
        <translation>Trial &amp;Reading from the Start</translation>
    </message>
    <message>
        <source>Phra&amp;se Cible...</source>
        <translation>Target P&amp;hrase...</translation>
    </message>
    <message>
        <source>&amp;Uniformiser...</source>
        <translation>Make &amp;Uniform...</translation>
    </message>
    <message>
        <source>&amp;Compter</source>
        <translation>Cou&amp;nt</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>&amp;Options...</translation>
    </message>
    <message>
        <source>Créer un Fichier &amp;RTF...</source>
        <translation>Create an &amp;RTF File...</translation>
    </message>
    <message>
        <source>&amp;Enregistrer 1 Paragraphe...</source>
        <translation>&amp;Save 1 Paragraph...</translation>
    </message>
    <message>
        <source>&amp;Charger 1 Paragraphe...</source>
        <translation>&amp;Load 1 Paragraph...</translation>
    </message>
    <message>
        <source>&amp;HTML : Aventure Entière</source>
        <translation>&amp;HTML: Whole Adventure</translation>
    </message>
    <message>
        <source>HTML : 1 Fichier par &amp;Paragraphe</source>
        <translation>HTML: 1 File per &amp;Paragraph</translation>
    </message>
    <message>
        <source>&amp;Aide en Français</source>
        <translation>&amp;Aide en Français</translation>
    </message>
    <message>
        <source>English &amp;Help</source>
        <translation>English &amp;Help</translation>
    </message>
    <message>
        <source>&amp;Ouvrir l&apos;Exemple</source>
        <translation>&amp;Open the Sample</translation>
    </message>
    <message>
        <source>À &amp;Propos</source>
        <translation>A&amp;bout</translation>
    </message>
    <message>
        <source>Rien de ce qui est tapé n&apos;est à l&apos;abri.</source>
        <translation>Nothing of what is typed is in safety.</translation>
    </message>
    <message>
        <source>Une action a échoué.</source>
        <translation>An action has failed.</translation>
    </message>
    <message>
        <source>L&apos;aventure %1 attend dans le menu.</source>
        <translation>The adventure %1 waits in the menu.</translation>
    </message>
    <message>
        <source>Usmira - %1</source>
        <translation>Usmira - %1</translation>
    </message>
    <message>
        <source>Livre &amp;Numérique (EPUB)...</source>
        <translation>&amp;E-book (EPUB)...</translation>
    </message>
    <message>
        <source>Pa&amp;ge de Lecture (HTML)...</source>
        <translation>Readin&amp;g Page (HTML)...</translation>
    </message>
    <message>
        <source>Livre &amp;Imprimable (PDF)...</source>
        <translation>Pr&amp;inted Book (PDF)...</translation>
    </message>
    <message>
        <source>Orthographe en Écri&amp;vant</source>
        <translation>Spelling &amp;While Typing</translation>
    </message>
    <message>
        <source>Souligner les mots douteux</source>
        <translation>Underline doubtful words</translation>
    </message>
    <message>
        <source>Ort&amp;hographe du Livre...</source>
        <translation>Boo&amp;k Spelling...</translation>
    </message>
    <message>
        <source>T&amp;ypographie du Livre...</source>
        <translation>Book T&amp;ypography...</translation>
    </message>
</context>
<context>
    <name>helpWindow</name>
    <message>
        <source>Help / Aide</source>
        <translation>Help / Aide</translation>
    </message>
    <message>
        <source>Aide</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>&amp;Fermer</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>Fermer l&apos;Aide (Échap)</source>
        <translation>Close the Help (Esc)</translation>
    </message>
    <message>
        <source>Aide Française Non Trouvée</source>
        <translation>French Help File Not Found</translation>
    </message>
    <message>
        <source>English Help File Not Found</source>
        <translation>English Help File Not Found</translation>
    </message>
</context>
<context>
    <name>manyHTML</name>
    <message>
        <source>Conversion au HTML - 1 Fichier par Paragraphe</source>
        <translation>Conversion to HTML - 1 File per Paragraph</translation>
    </message>
    <message>
        <source>Créer des fichiers HTML liés pour tous les paragraphes entre :</source>
        <translation>Create linked HTML files for all the paragraphs between:</translation>
    </message>
    <message>
        <source>Premier paragraphe</source>
        <translation>First paragraph</translation>
    </message>
    <message>
        <source>et</source>
        <translation>and</translation>
    </message>
    <message>
        <source>Dernier paragraphe</source>
        <translation>Last paragraph</translation>
    </message>
    <message>
        <source>Choisissez un Dossier :</source>
        <translation>Choose a Folder:</translation>
    </message>
    <message>
        <source>Parcourir...</source>
        <translation>Browse...</translation>
    </message>
    <message>
        <source>Vos fichiers seront nommés 0000.htm à 5000.htm avec le préfixe suivant :</source>
        <translation>Your files will be named 0000.htm to 5000.htm with the following prefix:</translation>
    </message>
    <message>
        <source>ABCDE</source>
        <translation>ABCDE</translation>
    </message>
    <message>
        <source>Code HTML en tête de chaque paragraphe (employez le code spécial &lt;999&gt; pour le numéro du paragraphe) :</source>
        <translation>HTML code at the head of each paragraph (use the special code &lt;999&gt; for the number of the paragraph):</translation>
    </message>
    <message>
        <source>Charger...</source>
        <translation>Load...</translation>
    </message>
    <message>
        <source>Charger le code de tête</source>
        <translation>Load the head code</translation>
    </message>
    <message>
        <source>Enregistrer...</source>
        <translation>Save...</translation>
    </message>
    <message>
        <source>Enregistrer le code de tête</source>
        <translation>Save the head code</translation>
    </message>
    <message>
        <source>Code HTML désiré à la fin de chaque paragraphe :</source>
        <translation>HTML code wanted at the end of each paragraph:</translation>
    </message>
    <message>
        <source>Charger le code de la fin</source>
        <translation>Load the end code</translation>
    </message>
    <message>
        <source>Enregistrer le code de la fin</source>
        <translation>Save the end code</translation>
    </message>
    <message>
        <source>ATTENTION : Si ces fichiers existent déjà dans ce dossier, ils seront effacés !</source>
        <translation>WARNING: If these files already exist in this folder, they will be erased!</translation>
    </message>
    <message>
        <source>Avancement du travail</source>
        <translation>Progress of the work</translation>
    </message>
    <message>
        <source>Annuler</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>HoTaMaLiser</source>
        <translation>HoTaMaLise</translation>
    </message>
    <message>
        <source>Choisissez un Dossier</source>
        <translation>Choose a Folder</translation>
    </message>
    <message>
        <source>Ce dossier n&apos;existe pas :
%1
Le créer?</source>
        <translation>This folder does not exist:
%1
Create it?</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Warning</translation>
    </message>
</context>
<context>
    <name>masterMix</name>
    <message>
        <source>MasterMix</source>
        <translation>MasterMix</translation>
    </message>
    <message>
        <source>L&apos;opération MasterMix va mélanger les paragraphes de</source>
        <translation>The MasterMix operation will shuffle the paragraphs from</translation>
    </message>
    <message>
        <source>Premier paragraphe</source>
        <translation>First paragraph</translation>
    </message>
    <message>
        <source>à</source>
        <translation>to</translation>
    </message>
    <message>
        <source>Dernier paragraphe</source>
        <translation>Last paragraph</translation>
    </message>
    <message>
        <source>Le texte de tous les paragraphes sera modifié pour tenir compte des nouveaux numéros. Le premier et le dernier paragraphe de l&apos;intervalle ne seront pas déplacés.</source>
        <translation>The text of all the paragraphs will be changed to match the new numbers. The first and the last paragraph of the range will not be moved.</translation>
    </message>
    <message>
        <source>Annuler</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Mélanger</source>
        <translation>Shuffle</translation>
    </message>
</context>
<context>
    <name>onebigHTML</name>
    <message>
        <source>Conversion au HTML - Un Seul Fichier</source>
        <translation>Conversion to HTML - One Single File</translation>
    </message>
    <message>
        <source>Créer un document HTML contenant les paragraphes :</source>
        <translation>Create an HTML document with the paragraphs from:</translation>
    </message>
    <message>
        <source>Premier paragraphe</source>
        <translation>First paragraph</translation>
    </message>
    <message>
        <source>à</source>
        <translation>to</translation>
    </message>
    <message>
        <source>Dernier paragraphe</source>
        <translation>Last paragraph</translation>
    </message>
    <message>
        <source>Code HTML désiré au début du fichier :</source>
        <translation>HTML code wanted at the beginning of the file:</translation>
    </message>
    <message>
        <source>Charger...</source>
        <translation>Load...</translation>
    </message>
    <message>
        <source>Charger le code du début</source>
        <translation>Load the beginning code</translation>
    </message>
    <message>
        <source>Enregistrer...</source>
        <translation>Save...</translation>
    </message>
    <message>
        <source>Enregistrer le code du début</source>
        <translation>Save the beginning code</translation>
    </message>
    <message>
        <source>Code HTML à insérer entre chaque paragraphe (utilisez le code spécial &lt;999&gt; pour le numéro du paragraphe) :</source>
        <translation>HTML code to insert between paragraphs (use the special code &lt;999&gt; for the number of the paragraph):</translation>
    </message>
    <message>
        <source>Charger le code des numéros</source>
        <translation>Load the number code</translation>
    </message>
    <message>
        <source>Enregistrer le code des numéros</source>
        <translation>Save the number code</translation>
    </message>
    <message>
        <source>Code HTML désiré à la fin du fichier :</source>
        <translation>HTML code wanted at the end of the file:</translation>
    </message>
    <message>
        <source>Charger le code de la fin</source>
        <translation>Load the end code</translation>
    </message>
    <message>
        <source>Enregistrer le code de la fin</source>
        <translation>Save the end code</translation>
    </message>
    <message>
        <source>Avancement du travail</source>
        <translation>Progress of the work</translation>
    </message>
    <message>
        <source>Annuler</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>HoTaMaLiser</source>
        <translation>HoTaMaLise</translation>
    </message>
    <message>
        <source>Fichiers TXT (*.txt)|*.txt</source>
        <translation>TXT files (*.txt)|*.txt</translation>
    </message>
    <message>
        <source>Enregistrer Fichier HTML</source>
        <translation>Save HTML File</translation>
    </message>
    <message>
        <source>Fichiers HTML (*.htm)|*.htm</source>
        <translation>HTML files (*.htm)|*.htm</translation>
    </message>
</context>
<context>
    <name>optionsDlog</name>
    <message>
        <source>Usmira Options</source>
        <translation>Usmira Options</translation>
    </message>
    <message>
        <source>&amp;Frappe</source>
        <translation>&amp;Typing</translation>
    </message>
    <message>
        <source>Deux tirets de suite donnent un tiret semi-cadratin (n-dash)</source>
        <translation>Two hyphens in a row give an en dash (n-dash)</translation>
    </message>
    <message>
        <source>Trois tirets de suite donnent un tiret cadratin (m-dash)</source>
        <translation>Three hyphens in a row give an em dash (m-dash)</translation>
    </message>
    <message>
        <source>Deux points de suite donnent une puce</source>
        <translation>Two full stops in a row give a bullet</translation>
    </message>
    <message>
        <source>Trois points de suite donnent les points de suspension (...)</source>
        <translation>Three full stops in a row give an ellipsis (...)</translation>
    </message>
    <message>
        <source>Remplacer les guillemets &quot; &quot; par les signes français « et »</source>
        <translation>Replace the quotation marks &quot; &quot; with the French signs « and »</translation>
    </message>
    <message>
        <source>Un E après un A donne la ligature æ</source>
        <translation>An E after an A gives the ligature æ</translation>
    </message>
    <message>
        <source>Un E après un O donne la ligature œ</source>
        <translation>An E after an O gives the ligature œ</translation>
    </message>
    <message>
        <source>Deux espaces de suite donnent un espace insécable (nbsp)</source>
        <translation>Two spaces in a row give a no-break space (nbsp)</translation>
    </message>
    <message>
        <source>Ctrl-E signifie Centrer au lieu d&apos;Échange (Échange devient Ctrl-3)</source>
        <translation>Ctrl-E means Centre instead of Swap (Swap becomes Ctrl-3)</translation>
    </message>
    <message>
        <source>Police par défaut :</source>
        <translation>Default font:</translation>
    </message>
    <message>
        <source>Taille :</source>
        <translation>Size:</translation>
    </message>
    <message>
        <source>&amp;Confort</source>
        <translation>&amp;Comfort</translation>
    </message>
    <message>
        <source>&amp;Zoom :</source>
        <translation>&amp;Zoom:</translation>
    </message>
    <message>
        <source>Agrandit ce qui se voit, jamais ce qui s&apos;enregistre : aussi Ctrl avec la molette, Ctrl+0, Ctrl++ et Ctrl+-</source>
        <translation>Enlarges what is seen, never what is saved: also Ctrl with the wheel, Ctrl+0, Ctrl++ and Ctrl+-</translation>
    </message>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>&amp;Largeur de la page :</source>
        <translation>Page &amp;width:</translation>
    </message>
    <message>
        <source> caractères</source>
        <translation> characters</translation>
    </message>
    <message>
        <source>C&amp;ouleurs :</source>
        <translation>C&amp;olours:</translation>
    </message>
    <message>
        <source>Celles du bureau</source>
        <translation>Those of the desktop</translation>
    </message>
    <message>
        <source>Claires</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>Sombres</source>
        <translation>Dark</translation>
    </message>
    <message>
        <source>&amp;Souligner les renvois</source>
        <translation>&amp;Underline references</translation>
    </message>
    <message>
        <source>Avec une vague sous ceux qui sont douteux</source>
        <translation>With a wave under those that are doubtful</translation>
    </message>
    <message>
        <source>&amp;Rouvrir la dernière au démarrage</source>
        <translation>&amp;Reopen the last adventure at start-up</translation>
    </message>
    <message>
        <source>L&apos;aventure ouverte en dernier</source>
        <translation>The adventure that was opened last</translation>
    </message>
    <message>
        <source>Annuler</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>La&amp;ngue :</source>
        <translation>La&amp;nguage:</translation>
    </message>
    <message>
        <source>Celle du bureau</source>
        <translation>That of the desktop</translation>
    </message>
    <message>
        <source>au prochain démarrage</source>
        <translation>at the next start</translation>
    </message>
    <message>
        <source>&amp;Dictionnaire :</source>
        <translation>&amp;Dictionary:</translation>
    </message>
    <message>
        <source>Celui de l&apos;orthographe, parmi ceux qui sont installés</source>
        <translation>That of spelling, among those that are installed</translation>
    </message>
    <message>
        <source>Souligner les mots dou&amp;teux</source>
        <translation>Underline doub&amp;tful words</translation>
    </message>
    <message>
        <source>Ceux que ni le dictionnaire ni vous ne connaissez ; aussi Maj+F7</source>
        <translation>Those that neither the dictionary nor you know; also Shift+F7</translation>
    </message>
    <message>
        <source>Laisser tels quels :</source>
        <translation>Leave as they are:</translation>
    </message>
    <message>
        <source>les mots en ca&amp;pitales</source>
        <translation>words in ca&amp;pitals</translation>
    </message>
    <message>
        <source>les mots avec des c&amp;hiffres</source>
        <translation>words wit&amp;h digits</translation>
    </message>
    <message>
        <source>%1, pas installé</source>
        <translation>%1, not installed</translation>
    </message>
    <message>
        <source>Typographie en écrivant</source>
        <translation>Typography while writing</translation>
    </message>
</context>
<context>
    <name>packHoles</name>
    <message>
        <source>Pack Holes</source>
        <translation>Fill the Gaps</translation>
    </message>
    <message>
        <source>Supprimer tous les paragraphes vides entre</source>
        <translation>Remove all the empty paragraphs between</translation>
    </message>
    <message>
        <source>Premier paragraphe</source>
        <translation>First paragraph</translation>
    </message>
    <message>
        <source>et</source>
        <translation>and</translation>
    </message>
    <message>
        <source>Dernier paragraphe</source>
        <translation>Last paragraph</translation>
    </message>
    <message>
        <source>Le texte de tous les paragraphes sera modifié pour se conformer aux nouveaux numéros.</source>
        <translation>The text of all the paragraphs will be changed to match the new numbers.</translation>
    </message>
    <message>
        <source>Annuler</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Combler</source>
        <translation>Fill</translation>
    </message>
</context>
<context>
    <name>pageDlog</name>
    <message>
        <source>Page de Lecture</source>
        <translation>Reading Page</translation>
    </message>
    <message>
        <source>Créer une page HTML pour lire les paragraphes</source>
        <translation>Create an HTML page for reading the paragraphs</translation>
    </message>
    <message>
        <source>Premier paragraphe</source>
        <translation>First paragraph</translation>
    </message>
    <message>
        <source>à</source>
        <translation>to</translation>
    </message>
    <message>
        <source>Dernier paragraphe</source>
        <translation>Last paragraph</translation>
    </message>
    <message>
        <source>Le &amp;Livre...</source>
        <translation>The &amp;Book...</translation>
    </message>
    <message>
        <source>De quoi prendre des notes et jeter un dé</source>
        <translation>For taking notes and throwing a die</translation>
    </message>
    <message>
        <source>&amp;Fiche</source>
        <translation>&amp;Sheet</translation>
    </message>
    <message>
        <source>Avancement du travail</source>
        <translation>Progress of the work</translation>
    </message>
    <message>
        <source>Annuler</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Créer</source>
        <translation>Create</translation>
    </message>
    <message>
        <source>Enregistrer Page de Lecture</source>
        <translation>Save Reading Page</translation>
    </message>
    <message>
        <source>Fichiers HTML (*.html)|*.html</source>
        <translation>HTML files (*.html)|*.html</translation>
    </message>
</context>
<context>
    <name>paraGraphs</name>
    <message>
        <source>Graphes de Références</source>
        <translation>Reference Graphs</translation>
    </message>
    <message>
        <source>Vue</source>
        <translation>View</translation>
    </message>
    <message>
        <source>Ce que le graphe montre</source>
        <translation>What the graph shows</translation>
    </message>
    <message>
        <source>Où mène ce paragraphe</source>
        <translation>Where this paragraph leads</translation>
    </message>
    <message>
        <source>Ce qui y mène</source>
        <translation>What leads to it</translation>
    </message>
    <message>
        <source>Tout le Livre</source>
        <translation>The Whole Book</translation>
    </message>
    <message>
        <source>&amp;Départ</source>
        <translation>S&amp;tart</translation>
    </message>
    <message>
        <source>Paragraphe d&apos;où part le graphe (Entrée pour valider)</source>
        <translation>Paragraph where the graph starts (Enter to confirm)</translation>
    </message>
    <message>
        <source>&amp;Profondeur</source>
        <translation>&amp;Depth</translation>
    </message>
    <message>
        <source>Nombre de renvois jusqu&apos;où l&apos;arbre va, de 1 à 25</source>
        <translation>How many references deep the tree goes, from 1 to 25</translation>
    </message>
    <message>
        <source>&amp;Trouver</source>
        <translation>&amp;Find</translation>
    </message>
    <message>
        <source>Paragraphe à montrer dans ce graphe (Entrée pour valider)</source>
        <translation>Paragraph to show in this graph (Enter to confirm)</translation>
    </message>
    <message>
        <source>Graphe</source>
        <translation>Graph</translation>
    </message>
    <message>
        <source>Aperçu</source>
        <translation>Preview</translation>
    </message>
    <message>
        <source>Légende</source>
        <translation>Legend</translation>
    </message>
    <message>
        <source>Aj&amp;uster</source>
        <translation>F&amp;it</translation>
    </message>
    <message>
        <source>Montrer tout le graphe (F ou 0)</source>
        <translation>Show the whole graph (F or 0)</translation>
    </message>
    <message>
        <source>−</source>
        <translation>−</translation>
    </message>
    <message>
        <source>Réduire (-)</source>
        <translation>Reduce (-)</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Agrandir (+)</source>
        <translation>Enlarge (+)</translation>
    </message>
    <message>
        <source>&amp;SVG...</source>
        <translation>&amp;SVG...</translation>
    </message>
    <message>
        <source>Enregistrer tout le graphe en dessin SVG</source>
        <translation>Save the whole graph as an SVG drawing</translation>
    </message>
    <message>
        <source>P&amp;NG...</source>
        <translation>P&amp;NG...</translation>
    </message>
    <message>
        <source>Enregistrer tout le graphe en image PNG</source>
        <translation>Save the whole graph as a PNG picture</translation>
    </message>
    <message>
        <source>&amp;Fermer</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>Fermer cette fenêtre (Échap)</source>
        <translation>Close this window (Esc)</translation>
    </message>
    <message>
        <source>Dessins SVG</source>
        <translation>SVG drawings</translation>
    </message>
    <message>
        <source>Images PNG</source>
        <translation>PNG pictures</translation>
    </message>
    <message>
        <source>Paragraphes&#xa0;: %1   Renvois&#xa0;: %2   Échelle&#xa0;: %3&#xa0;%</source>
        <translation>Paragraphs: %1   References: %2   Scale: %3%</translation>
    </message>
    <message>
        <source>Le paragraphe %1 n&apos;est pas dans ce graphe.</source>
        <translation>Paragraph %1 is not in this graph.</translation>
    </message>
    <message>
        <source>Un numéro de 1 à 2000 est attendu.</source>
        <translation>A number from 1 to 2000 is expected.</translation>
    </message>
    <message>
        <source>Paragraphe %1</source>
        <translation>Paragraph %1</translation>
    </message>
    <message>
        <source>Cliquez sur un paragraphe pour lire un aperçu.
Shift-cliquez pour vous rendre à ce paragraphe.
Double-cliquez pour en faire le départ.</source>
        <translation>Click a paragraph to read a preview.
Shift-click to go to that paragraph.
Double-click to start the graph there.</translation>
    </message>
    <message>
        <source>&amp;Départ ici	Entrée</source>
        <translation>&amp;Start here	Enter</translation>
    </message>
    <message>
        <source>&amp;Aller dans l&apos;éditeur	Maj+Entrée</source>
        <translation>&amp;Go to the editor	Shift+Enter</translation>
    </message>
    <message>
        <source>A&amp;perçu	Espace</source>
        <translation>&amp;Preview	Space</translation>
    </message>
    <message>
        <source>&amp;Retirer le point d&apos;arrêt	A</source>
        <translation>&amp;Remove the stop	A</translation>
    </message>
    <message>
        <source>&amp;Point d&apos;arrêt	A</source>
        <translation>S&amp;top here	A</translation>
    </message>
    <message>
        <source>Enregistrer le Graphe</source>
        <translation>Save the Graph</translation>
    </message>
    <message>
        <source>Enregistré, réduit à %1 % : %2</source>
        <translation>Saved, reduced to %1%: %2</translation>
    </message>
    <message>
        <source>Enregistré : %1</source>
        <translation>Saved: %1</translation>
    </message>
</context>
<context>
    <name>paraGrid</name>
    <message>
        <source>Grille Numérique</source>
        <translation>Number Grid</translation>
    </message>
    <message>
        <source>Grille des paragraphes</source>
        <translation>Paragraph grid</translation>
    </message>
    <message>
        <source>Rangées de la grille</source>
        <translation>Rows of the grid</translation>
    </message>
    <message>
        <source>Légende</source>
        <translation>Legend</translation>
    </message>
    <message>
        <source>Fermer</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Fermer cette fenêtre (Échap)</source>
        <translation>Close this window (Esc)</translation>
    </message>
    <message>
        <source>Lectures au hasard</source>
        <translation>Random readings</translation>
    </message>
    <message>
        <source>Aperçu du %1</source>
        <translation>Preview of %1</translation>
    </message>
    <message>
        <source>Aperçu</source>
        <translation>Preview</translation>
    </message>
    <message>
        <source>Cliquez sur un paragraphe pour lire un aperçu.
Shift-cliquez pour vous rendre à ce paragraphe.</source>
        <translation>Click a paragraph to read a preview.
Shift-click to go to that paragraph.</translation>
    </message>
</context>
<context>
    <name>proximityScan</name>
    <message>
        <source>Détecteur de Proximité</source>
        <translation>Proximity Scan</translation>
    </message>
    <message>
        <source>Le détecteur de proximité génère une liste de toutes les références trop proches, comme &quot;Rendez-vous au 26&quot; venant du paragraphe 25. Vous spécifiez la proximité critique. Rien n&apos;est changé dans les paragraphes. Vous pouvez vous servir d&apos;Échange pour en déplacer quelques-uns.</source>
        <translation>The proximity scan makes a list of all the references that land too close, such as &quot;Turn to 26&quot; in paragraph 25. You give the critical proximity. Nothing is changed in the paragraphs. You can use Swap to move some of them.</translation>
    </message>
    <message>
        <source>Proximité critique</source>
        <translation>Critical proximity</translation>
    </message>
    <message>
        <source>Critical Proximity</source>
        <translation>Critical Proximity</translation>
    </message>
    <message>
        <source>ou moins</source>
        <translation>or less</translation>
    </message>
    <message>
        <source>Détecter</source>
        <translation>Scan</translation>
    </message>
    <message>
        <source>Faire la liste des références trop proches (Entrée)</source>
        <translation>List the references that land too close (Enter)</translation>
    </message>
    <message>
        <source>Références trop proches</source>
        <translation>References that land too close</translation>
    </message>
    <message>
        <source>Un double-clic ou Entrée va au premier paragraphe de la ligne</source>
        <translation>A double click or Enter goes to the first paragraph of the line</translation>
    </message>
    <message>
        <source>Retirer de la Liste</source>
        <translation>Remove from the List</translation>
    </message>
    <message>
        <source>Retirer la ligne choisie, une fois réglée (Suppr)</source>
        <translation>Remove the chosen line once it is settled (Del)</translation>
    </message>
    <message>
        <source>Fermer</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Fermer cette fenêtre (Échap)</source>
        <translation>Close this window (Esc)</translation>
    </message>
    <message>
        <source>Redétecter</source>
        <translation>Scan Again</translation>
    </message>
</context>
<context>
    <name>readingWindow</name>
    <message>
        <source>Lecture d&apos;Essai</source>
        <translation>Trial Reading</translation>
    </message>
    <message>
        <source>&amp;Oublier les lectures...</source>
        <translation>&amp;Forget readings...</translation>
    </message>
    <message>
        <source>Plus aucun paragraphe et aucun choix ne compte comme lu</source>
        <translation>No paragraph and no choice counts as read any more</translation>
    </message>
    <message>
        <source>&amp;Chemin</source>
        <translation>&amp;Path</translation>
    </message>
    <message>
        <source>Chemin suivi</source>
        <translation>Path followed</translation>
    </message>
    <message>
        <source>&amp;Retour</source>
        <translation>&amp;Back</translation>
    </message>
    <message>
        <source>Revenir d&apos;un pas (Retour arrière)</source>
        <translation>Go back one step (Backspace)</translation>
    </message>
    <message>
        <source>Ré&amp;tablir</source>
        <translation>For&amp;ward</translation>
    </message>
    <message>
        <source>Avancer d&apos;un pas, ou reprendre le dernier chemin quitté (Alt+Droite)</source>
        <translation>Go forward one step, or take up the last path that was left (Alt+Right)</translation>
    </message>
    <message>
        <source>Marque-&amp;pages</source>
        <translation>Book&amp;marks</translation>
    </message>
    <message>
        <source>Marque-pages</source>
        <translation>Bookmarks</translation>
    </message>
    <message>
        <source>Entrée y retourne, F2 renomme</source>
        <translation>Enter goes back there, F2 renames</translation>
    </message>
    <message>
        <source>&amp;Ajouter</source>
        <translation>&amp;Add</translation>
    </message>
    <message>
        <source>Un marque-page à ce point du chemin</source>
        <translation>A bookmark at this point of the path</translation>
    </message>
    <message>
        <source>Re&amp;nommer</source>
        <translation>Re&amp;name</translation>
    </message>
    <message>
        <source>Donner un autre nom au marque-page choisi (F2)</source>
        <translation>Give the chosen bookmark another name (F2)</translation>
    </message>
    <message>
        <source>Ret&amp;irer</source>
        <translation>Remo&amp;ve</translation>
    </message>
    <message>
        <source>Enlever le marque-page choisi</source>
        <translation>Take the chosen bookmark away</translation>
    </message>
    <message>
        <source>Texte du paragraphe</source>
        <translation>Text of the paragraph</translation>
    </message>
    <message>
        <source>Choix du paragraphe</source>
        <translation>Choices of the paragraph</translation>
    </message>
    <message>
        <source>Entrée ou un clic suit le choix</source>
        <translation>Enter or a click follows the choice</translation>
    </message>
    <message>
        <source>&amp;Début</source>
        <translation>&amp;Start</translation>
    </message>
    <message>
        <source>Recommencer au départ du livre (Début)</source>
        <translation>Begin again at the start of the book (Home)</translation>
    </message>
    <message>
        <source>Prochain non &amp;lu</source>
        <translation>Next &amp;unread</translation>
    </message>
    <message>
        <source>Aller par le plus court chemin à un paragraphe qui n&apos;est pas encore lu</source>
        <translation>Go by the shortest path to a paragraph that has not been read yet</translation>
    </message>
    <message>
        <source>Au &amp;hasard</source>
        <translation>At &amp;random</translation>
    </message>
    <message>
        <source>Une lecture au hasard, d&apos;ici jusqu&apos;à sa fin</source>
        <translation>A random reading, from here to its end</translation>
    </message>
    <message>
        <source>&amp;Modifier</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>Montrer ce passage dans l&apos;éditeur (Ctrl+Entrée)</source>
        <translation>Show this passage in the editor (Ctrl+Enter)</translation>
    </message>
    <message>
        <source>&amp;Fermer</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>Fermer cette fenêtre (Échap)</source>
        <translation>Close this window (Esc)</translation>
    </message>
    <message>
        <source>%1 : %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Le paragraphe %1 est encore vide.</source>
        <translation>Paragraph %1 is still empty.</translation>
    </message>
    <message>
        <source>Il n&apos;y a rien à lire.</source>
        <translation>There is nothing to read.</translation>
    </message>
    <message>
        <source>Oublier quels paragraphes ont été lus, et par quels choix ? Les marque-pages restent.</source>
        <translation>Forget which paragraphs were read, and by which choices? The bookmarks stay.</translation>
    </message>
    <message>
        <source>Oublier les lectures</source>
        <translation>Forget the Readings</translation>
    </message>
    <message>
        <source>Paragraphe %1</source>
        <translation>Paragraph %1</translation>
    </message>
    <message>
        <source>Aucune lecture en cours</source>
        <translation>No reading in progress</translation>
    </message>
    <message>
        <source>La touche Début commence au départ du livre, F5 au paragraphe de l&apos;éditeur.</source>
        <translation>The Home key begins at the start of the book, F5 at the paragraph of the editor.</translation>
    </message>
    <message>
        <source>Le texte de ce paragraphe est illisible.</source>
        <translation>The text of this paragraph cannot be read.</translation>
    </message>
    <message>
        <source>Ce paragraphe est vide.</source>
        <translation>This paragraph is empty.</translation>
    </message>
    <message>
        <source>Lus : %1 sur %2</source>
        <translation>Read: %1 of %2</translation>
    </message>
    <message>
        <source>Fin : aucun renvoi ne part d&apos;ici.</source>
        <translation>The end: no reference leaves from here.</translation>
    </message>
    <message>
        <source>1 à 9 : choisir ; Retour arrière : revenir ; Début : recommencer.</source>
        <translation>1 to 9: choose; Backspace: go back; Home: begin again.</translation>
    </message>
</context>
<context>
    <name>searchReplace</name>
    <message>
        <source>Search and Replace</source>
        <translation>Search and Replace</translation>
    </message>
    <message>
        <source>Rechercher :</source>
        <translation>Search for:</translation>
    </message>
    <message>
        <source>Remplacer par :</source>
        <translation>Replace with:</translation>
    </message>
    <message>
        <source>Paragraphe actuel seulement</source>
        <translation>Current paragraph only</translation>
    </message>
    <message>
        <source>Différencier MAJ/min</source>
        <translation>Match CASE/case</translation>
    </message>
    <message>
        <source>Mot entier</source>
        <translation>Whole word</translation>
    </message>
    <message>
        <source>Pour la liste :</source>
        <translation>For the list:</translation>
    </message>
    <message>
        <source>Expression régulière</source>
        <translation>Regular expression</translation>
    </message>
    <message>
        <source>Dans le remplacement, $1 à $9 sont les groupes de l&apos;expression</source>
        <translation>In the replacement, $1 to $9 are the groups of the expression</translation>
    </message>
    <message>
        <source>Sans accents</source>
        <translation>Ignore accents</translation>
    </message>
    <message>
        <source>foret trouve aussi forêt</source>
        <translation>foret also finds forêt</translation>
    </message>
    <message>
        <source>Avancement du travail</source>
        <translation>Progress of the work</translation>
    </message>
    <message>
        <source>Suivant</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>Chercher l&apos;occurrence suivante (F3)</source>
        <translation>Search for the next match (F3)</translation>
    </message>
    <message>
        <source>Remplacer</source>
        <translation>Replace</translation>
    </message>
    <message>
        <source>Remplacer ce qui est trouvé, puis chercher la suite</source>
        <translation>Replace what is found, then search on</translation>
    </message>
    <message>
        <source>Remplacer Tous</source>
        <translation>Replace All</translation>
    </message>
    <message>
        <source>Remplacer chaque occurrence</source>
        <translation>Replace every match</translation>
    </message>
    <message>
        <source>&amp;Compter</source>
        <translation>&amp;Count</translation>
    </message>
    <message>
        <source>Compter ce que Remplacer Tous remplacerait</source>
        <translation>Count what Replace All would replace</translation>
    </message>
    <message>
        <source>Tout Lister</source>
        <translation>List All</translation>
    </message>
    <message>
        <source>Montrer toutes les occurrences de l&apos;aventure dans une liste</source>
        <translation>Show all the matches of the adventure in a list</translation>
    </message>
    <message>
        <source>Fermer</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Fermer cette fenêtre (Échap)</source>
        <translation>Close this window (Esc)</translation>
    </message>
    <message>
        <source>Fin du paragraphe atteinte.</source>
        <translation>End of the paragraph reached.</translation>
    </message>
    <message>
        <source>Rien</source>
        <translation>Nothing</translation>
    </message>
    <message>
        <source>Cette expression régulière n&apos;est pas valable, à partir du caractère %1.</source>
        <translation>This regular expression is not valid, from character %1 on.</translation>
    </message>
    <message>
        <source>Zut</source>
        <translation>Oops</translation>
    </message>
</context>
<context>
    <name>splitFile</name>
    <message>
        <source>File Split</source>
        <translation>File Split</translation>
    </message>
    <message>
        <source>Exporter les paragraphes entre</source>
        <translation>Export the paragraphs between</translation>
    </message>
    <message>
        <source>Premier paragraphe</source>
        <translation>First paragraph</translation>
    </message>
    <message>
        <source>&amp;</source>
        <translation>&amp;</translation>
    </message>
    <message>
        <source>Dernier paragraphe</source>
        <translation>Last paragraph</translation>
    </message>
    <message>
        <source>dans un nouveau fichier.</source>
        <translation>to a new file.</translation>
    </message>
    <message>
        <source>Effacer ces paragraphes dans cette aventure</source>
        <translation>Erase these paragraphs in this adventure</translation>
    </message>
    <message>
        <source>Annuler</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Exporter</source>
        <translation>Export</translation>
    </message>
</context>
<context>
    <name>statisticsWindow</name>
    <message>
        <source>Statistiques</source>
        <translation>Statistics</translation>
    </message>
    <message>
        <source>&amp;Livre</source>
        <translation>&amp;Book</translation>
    </message>
    <message>
        <source>Le livre en chiffres</source>
        <translation>The book in figures</translation>
    </message>
    <message>
        <source>Longueur des paragraphes</source>
        <translation>Length of the paragraphs</translation>
    </message>
    <message>
        <source>Choix par paragraphe</source>
        <translation>Choices per paragraph</translation>
    </message>
    <message>
        <source>&amp;Paragraphes</source>
        <translation>&amp;Paragraphs</translation>
    </message>
    <message>
        <source>Fi&amp;ns</source>
        <translation>&amp;Endings</translation>
    </message>
    <message>
        <source>Chemin et passages obligés</source>
        <translation>Path and unavoidable paragraphs</translation>
    </message>
    <message>
        <source>Lectures au &amp;hasard</source>
        <translation>&amp;Random readings</translation>
    </message>
    <message>
        <source>&amp;1000 lectures au hasard</source>
        <translation>&amp;1000 random readings</translation>
    </message>
    <message>
        <source>Lire encore 1000 fois, avec une autre graine ou avec celle qui vient d&apos;être tapée</source>
        <translation>Read 1000 times more, with another seed or with the one just typed</translation>
    </message>
    <message>
        <source>&amp;Graine :</source>
        <translation>See&amp;d:</translation>
    </message>
    <message>
        <source>La même graine donne les mêmes lectures, tant que le livre reste le même ; Entrée les refait</source>
        <translation>The same seed gives the same readings as long as the book stays the same; Enter makes them again</translation>
    </message>
    <message>
        <source>&amp;Montrer dans la grille</source>
        <translation>Show in the &amp;grid</translation>
    </message>
    <message>
        <source>La grille montre combien de lectures passent par chaque paragraphe, tant que cette fenêtre est ouverte</source>
        <translation>The grid shows how many readings come through each paragraph, as long as this window is open</translation>
    </message>
    <message>
        <source>Ce que donnent les lectures au hasard</source>
        <translation>What the random readings give</translation>
    </message>
    <message>
        <source>Longueur des lectures</source>
        <translation>Length of the readings</translation>
    </message>
    <message>
        <source>&amp;Copier</source>
        <translation>Cop&amp;y</translation>
    </message>
    <message>
        <source>Copier toutes les statistiques comme texte</source>
        <translation>Copy all the statistics as text</translation>
    </message>
    <message>
        <source>&amp;Fermer</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>Fermer cette fenêtre (Échap)</source>
        <translation>Close this window (Esc)</translation>
    </message>
    <message>
        <source>Numéro</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>Mots</source>
        <translation>Words</translation>
    </message>
    <message>
        <source>Signes</source>
        <translation>Characters</translation>
    </message>
    <message>
        <source>Choix</source>
        <translation>Choices</translation>
    </message>
    <message>
        <source>Lectures</source>
        <translation>Readings</translation>
    </message>
    <message>
        <source>Premiers mots</source>
        <translation>First words</translation>
    </message>
    <message>
        <source>Paragraphes</source>
        <translation>Paragraphs</translation>
    </message>
    <message>
        <source>Un double-clic ou Entrée va au paragraphe</source>
        <translation>A double click or Enter goes to the paragraph</translation>
    </message>
    <message>
        <source>Fin</source>
        <translation>Ending</translation>
    </message>
    <message>
        <source>Longueur</source>
        <translation>Length</translation>
    </message>
    <message>
        <source>Passages</source>
        <translation>Unavoidable</translation>
    </message>
    <message>
        <source>Fins</source>
        <translation>Endings</translation>
    </message>
    <message>
        <source>Un clic ou Entrée lit le chemin le plus court jusqu&apos;à cette fin</source>
        <translation>A click or Enter shows the shortest path to this ending</translation>
    </message>
    <message>
        <source>mots</source>
        <translation>words</translation>
    </message>
    <message>
        <source>paragraphes</source>
        <translation>paragraphs</translation>
    </message>
    <message>
        <source>choix</source>
        <translation>choices</translation>
    </message>
    <message>
        <source>paragraphes lus</source>
        <translation>paragraphs read</translation>
    </message>
    <message>
        <source>lectures</source>
        <translation>readings</translation>
    </message>
    <message>
        <source>Une graine est un nombre de 0 à 4294967295.</source>
        <translation>A seed is a number from 0 to 4294967295.</translation>
    </message>
    <message>
        <source>Choisissez une fin : le chemin le plus court et les passages obligés s&apos;affichent ici.</source>
        <translation>Choose an ending: the shortest path and the unavoidable paragraphs are shown here.</translation>
    </message>
</context>
<context>
    <name>targetDlog</name>
    <message>
        <source>Target String</source>
        <translation>Target Phrase</translation>
    </message>
    <message>
        <source>La Phrase Cible est utilisée par Usmira pour reconnaître une référence à un paragraphe. C&apos;est le texte qui précède le numéro. En français c&apos;est généralement &quot;_au_&quot; alors qu&apos;en anglais c&apos;est &quot;_to_&quot; (où _ veut dire un espace). Définissez la Phrase Cible de votre aventure ici.</source>
        <translation>Usmira uses the Target Phrase to recognise a reference to a paragraph. It is the text that comes before the number. In French it is generally &quot;_au_&quot; whereas in English it is &quot;_to_&quot; (where _ stands for a space). Define the Target Phrase of your adventure here.</translation>
    </message>
    <message>
        <source>Phrase Cible</source>
        <translation>Target Phrase</translation>
    </message>
    <message>
        <source>_au_</source>
        <translation>_au_</translation>
    </message>
    <message>
        <source>Annuler</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Définir</source>
        <translation>Set</translation>
    </message>
</context>
<context>
    <name>uniformFormat</name>
    <message>
        <source>Uniformiser</source>
        <translation>Make Uniform</translation>
    </message>
    <message>
        <source>Appliquer les mises en forme suivantes à l&apos;aventure entière :</source>
        <translation>Apply the following formatting to the whole adventure:</translation>
    </message>
    <message>
        <source>Police :</source>
        <translation>Font:</translation>
    </message>
    <message>
        <source>Police</source>
        <translation>Font</translation>
    </message>
    <message>
        <source>Taille :</source>
        <translation>Size:</translation>
    </message>
    <message>
        <source>Taille en points</source>
        <translation>Size in points</translation>
    </message>
    <message>
        <source>&amp;Compter</source>
        <translation>&amp;Count</translation>
    </message>
    <message>
        <source>Compter les paragraphes qui changeraient</source>
        <translation>Count the paragraphs that would change</translation>
    </message>
    <message>
        <source>Avancement du travail</source>
        <translation>Progress of the work</translation>
    </message>
    <message>
        <source>Annuler</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>La taille doit être entre 1 et 1638 points.</source>
        <translation>The size must be between 1 and 1638 points.</translation>
    </message>
</context>
</TS>
