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
</TS>
