#pragma once

#include "convert/pdf/PageSetup.h"

#include <QStringList>

// A page setup in words, as scripts and the file that keeps it have it:
//   papier=A5                 or A4, 6x9 (inches), 14x21 (centimetres), 120x180 (millimetres)
//   interieur=18              margins in millimetres; exterieur, tete, pied
//   recto-verso=oui           or non
//   police=Liberation Serif
//   taille=10.5               points, with which the leading grows, unless it is given too
//   interligne=13.5
//   justifie=oui              or non; so also cesures, noir, numeros-de-page, un-par-page
//   renvois=tels              or gras, fleche
//   titre-courant=numeros     or rien, titre
//   numero=gras,centre        and italique, souligne; or rien
//   numero-police=            of the text, when empty
//   numero-taille=13

// Changes what the words name. Gives the first word that is none, or has no sensible value; nothing
// has changed then. Whether the whole makes sense says pageSetupFault().
QString setPageWords(PageSetup &setup, const QStringList &words);

// All words of a setup.
QStringList pageWords(const PageSetup &setup);
