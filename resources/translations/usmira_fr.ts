<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="fr_FR">
<context>
    <name>AdventureMerge</name>
    <message numerus="yes">
        <source>%n paragraphe(s) importé(s) : %1</source>
        <translation>
            <numerusform>%n paragraphe importé : %1</numerusform>
            <numerusform>%n paragraphes importés : %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n nouveau(x)</source>
        <translation>
            <numerusform>%n nouveau</numerusform>
            <numerusform>%n nouveaux</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n paragraphe(s) remplacé(s)</source>
        <translation>
            <numerusform>%n paragraphe remplacé</numerusform>
            <numerusform>%n paragraphes remplacés</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AdventureSplit</name>
    <message numerus="yes">
        <source>%n paragraphe(s) exporté(s) : %1</source>
        <translation>
            <numerusform>%n paragraphe exporté : %1</numerusform>
            <numerusform>%n paragraphes exportés : %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Book</name>
    <message numerus="yes">
        <source>%n renvoi(s) mène(nt) à un paragraphe vide : %1.</source>
        <translation>
            <numerusform>%n renvoi mène à un paragraphe vide : %1.</numerusform>
            <numerusform>%n renvois mènent à un paragraphe vide : %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n renvoi(s) mène(nt) à des paragraphes vides : %1.</source>
        <translation>
            <numerusform>%n renvoi mène à des paragraphes vides : %1.</numerusform>
            <numerusform>%n renvois mènent à des paragraphes vides : %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CheckBook</name>
    <message numerus="yes">
        <source>%n faute(s)</source>
        <translation>
            <numerusform>%n faute</numerusform>
            <numerusform>%n fautes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n remarque(s)</source>
        <translation>
            <numerusform>%n remarque</numerusform>
            <numerusform>%n remarques</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CheckMenu</name>
    <message numerus="yes">
        <source>Corriger %n renvoi(s)</source>
        <translation>
            <numerusform>Corriger %n renvoi</numerusform>
            <numerusform>Corriger %n renvois</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message numerus="yes">
        <source>%n mot(s) douteux.</source>
        <translation>
            <numerusform>%n mot douteux.</numerusform>
            <numerusform>%n mots douteux.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ExportCommand</name>
    <message numerus="yes">
        <source>%n paragraphe(s) écrit(s) : %1</source>
        <translation>
            <numerusform>%n paragraphe écrit : %1</numerusform>
            <numerusform>%n paragraphes écrits : %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>GrammarCheck</name>
    <message numerus="yes">
        <source>Grammaire : %n constat(s).</source>
        <translation>
            <numerusform>Grammaire : %n constat.</numerusform>
            <numerusform>Grammaire : %n constats.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HistoryCommands</name>
    <message numerus="yes">
        <source>%n paragraphe(s) modifié(s) depuis : %1 Les remettre aussi comme avant la commande ?</source>
        <translation>
            <numerusform>%n paragraphe a été modifié depuis : %1 Le remettre aussi comme avant la commande ?</numerusform>
            <numerusform>%n paragraphes ont été modifiés depuis : %1 Les remettre aussi comme avant la commande ?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n paragraphe(s) modifié(s) depuis : %1 Les remettre aussi comme après la commande ?</source>
        <translation>
            <numerusform>%n paragraphe a été modifié depuis : %1 Le remettre aussi comme après la commande ?</numerusform>
            <numerusform>%n paragraphes ont été modifiés depuis : %1 Les remettre aussi comme après la commande ?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Annulé : %1, et %n commande(s) d&apos;après.</source>
        <translation>
            <numerusform>Annulé : %1, et la commande d&apos;après.</numerusform>
            <numerusform>Annulé : %1, et les %n commandes d&apos;après.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Rétabli : %1, et %n commande(s) d&apos;avant.</source>
        <translation>
            <numerusform>Rétabli : %1, et la commande d&apos;avant.</numerusform>
            <numerusform>Rétabli : %1, et les %n commandes d&apos;avant.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HistoryWindow</name>
    <message numerus="yes">
        <source>Rétablir jusqu&apos;à cette commande rétablit %n commande(s).</source>
        <translation>
            <numerusform>Rétablir jusqu&apos;à cette commande ne rétablit qu&apos;elle.</numerusform>
            <numerusform>Rétablir jusqu&apos;à cette commande en rétablit %n d&apos;un coup.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Revenir avant cette commande annule %n commande(s).</source>
        <translation>
            <numerusform>Revenir avant cette commande n&apos;annule qu&apos;elle.</numerusform>
            <numerusform>Revenir avant cette commande en annule %n d&apos;un coup.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NumberPreview</name>
    <message numerus="yes">
        <source>%n renvoi(s) douteux.</source>
        <translation>
            <numerusform>%n renvoi douteux.</numerusform>
            <numerusform>%n renvois douteux.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NumberWindow</name>
    <message numerus="yes">
        <source>%n ligne(s) copiée(s).</source>
        <translation>
            <numerusform>%n ligne copiée.</numerusform>
            <numerusform>%n lignes copiées.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n paragraphe(s) sur %1 ont un autre numéro.</source>
        <translation>
            <numerusform>%n paragraphe sur %1 a un autre numéro.</numerusform>
            <numerusform>%n paragraphes sur %1 ont un autre numéro.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReadingSentences</name>
    <message numerus="yes">
        <source>D&apos;ici, tout est lu ; depuis le début, il reste %n paragraphe(s) à lire.</source>
        <translation>
            <numerusform>D&apos;ici, tout est lu ; depuis le début, il reste %n paragraphe à lire.</numerusform>
            <numerusform>D&apos;ici, tout est lu ; depuis le début, il reste %n paragraphes à lire.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Tout ce qu&apos;une lecture peut atteindre est lu ; %n paragraphe(s) non lu(s) ne sont atteints par aucune.</source>
        <translation>
            <numerusform>Tout ce qu&apos;une lecture peut atteindre est lu ; %n paragraphe non lu n&apos;est atteint par aucune.</numerusform>
            <numerusform>Tout ce qu&apos;une lecture peut atteindre est lu ; %n paragraphes non lus ne sont atteints par aucune.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Au hasard : arrêté après %n paragraphe(s), car la lecture tourne en rond : %1</source>
        <translation>
            <numerusform>Au hasard : arrêté après %n paragraphe, car la lecture tourne en rond : %1</numerusform>
            <numerusform>Au hasard : arrêté après %n paragraphes, car la lecture tourne en rond : %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Au hasard : %n paragraphe(s) jusqu&apos;à une fin.</source>
        <translation>
            <numerusform>Au hasard : %n paragraphe jusqu&apos;à une fin.</numerusform>
            <numerusform>Au hasard : %n paragraphes jusqu&apos;à une fin.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Au hasard : %n paragraphe(s), puis un renvoi à un paragraphe vide.</source>
        <translation>
            <numerusform>Au hasard : %n paragraphe, puis un renvoi à un paragraphe vide.</numerusform>
            <numerusform>Au hasard : %n paragraphes, puis un renvoi à un paragraphe vide.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RenumberCommands</name>
    <message numerus="yes">
        <source>%n renvoi(s) serai(en)t mal réécrit(s). Les corriger d&apos;abord ?</source>
        <translation>
            <numerusform>%n renvoi serait mal réécrit. Le corriger d&apos;abord ?</numerusform>
            <numerusform>%n renvois seraient mal réécrits. Les corriger d&apos;abord ?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RenumberPreview</name>
    <message numerus="yes">
        <source>%n paragraphe(s) change(nt) de numéro</source>
        <translation>
            <numerusform>%n paragraphe change de numéro</numerusform>
            <numerusform>%n paragraphes changent de numéro</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n paragraphe(s) mélangé(s)</source>
        <translation>
            <numerusform>%n paragraphe mélangé</numerusform>
            <numerusform>%n paragraphes mélangés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n reste(nt) fixe(s)</source>
        <translation>
            <numerusform>%n reste fixe</numerusform>
            <numerusform>%n restent fixes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n paragraphe(s) exporté(s).</source>
        <translation>
            <numerusform>%n paragraphe exporté.</numerusform>
            <numerusform>%n paragraphes exportés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n paragraphe(s) exporté(s) et effacé(s)</source>
        <translation>
            <numerusform>%n paragraphe exporté et effacé</numerusform>
            <numerusform>%n paragraphes exportés et effacés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n renvoi(s) dans %1 y mène(nt) encore</source>
        <translation>
            <numerusform>%n renvoi dans %1 y mène encore</numerusform>
            <numerusform>%n renvois dans %1 y mènent encore</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n paragraphe(s)</source>
        <translation>
            <numerusform>%n paragraphe</numerusform>
            <numerusform>%n paragraphes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n renvoi(s) réécrit(s) dans %1</source>
        <translation>
            <numerusform>%n renvoi réécrit dans %1</numerusform>
            <numerusform>%n renvois réécrits dans %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SearchCommands</name>
    <message numerus="yes">
        <source>%n occurrence(s) dans %1.</source>
        <translation>
            <numerusform>%n occurrence dans %1.</numerusform>
            <numerusform>%n occurrences dans %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n paragraphe(s)</source>
        <translation>
            <numerusform>%n paragraphe</numerusform>
            <numerusform>%n paragraphes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SpellingMenu</name>
    <message numerus="yes">
        <source>%n mot(s) remplacé(s).</source>
        <translation>
            <numerusform>%n mot remplacé.</numerusform>
            <numerusform>%n mots remplacés.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StatisticsText</name>
    <message numerus="yes">
        <source>%n mot(s)</source>
        <translation>
            <numerusform>%n mot</numerusform>
            <numerusform>%n mots</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lecture(s) au hasard, graine %1</source>
        <translation>
            <numerusform>%n lecture au hasard, graine %1</numerusform>
            <numerusform>%n lectures au hasard, graine %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lecture(s) prise(s) dans une boucle : %1</source>
        <translation>
            <numerusform>%n lecture prise dans une boucle : %1</numerusform>
            <numerusform>%n lectures prises dans une boucle : %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message numerus="yes">
        <source>%n mot(s)</source>
        <translation>
            <numerusform>%n mot</numerusform>
            <numerusform>%n mots</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n renvoi(s)</source>
        <translation>
            <numerusform>%n renvoi</numerusform>
            <numerusform>%n renvois</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TypographyCommands</name>
    <message numerus="yes">
        <source>%n correction(s) dans %1.</source>
        <translation>
            <numerusform>%n correction dans %1.</numerusform>
            <numerusform>%n corrections dans %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n paragraphe(s)</source>
        <translation>
            <numerusform>%n paragraphe</numerusform>
            <numerusform>%n paragraphes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UniformFormatting</name>
    <message numerus="yes">
        <source>%n paragraphe(s) change(nt).</source>
        <translation>
            <numerusform>%n paragraphe change.</numerusform>
            <numerusform>%n paragraphes changent.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>bookCheck</name>
    <message numerus="yes">
        <source>%n constat(s) choisi(s).</source>
        <translation>
            <numerusform>%n constat choisi.</numerusform>
            <numerusform>%n constats choisis.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>bookSpelling</name>
    <message numerus="yes">
        <source>%n mot(s) douteux</source>
        <translation>
            <numerusform>%n mot douteux</numerusform>
            <numerusform>%n mots douteux</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>en %n endroit(s).</source>
        <translation>
            <numerusform>en %n endroit.</numerusform>
            <numerusform>en %n endroits.</numerusform>
        </translation>
    </message>
</context>
</TS>
