#include "links/Faux.h"
#include "links/FormatFichier.h"
#include "support/DossierTemporaire.h"

#include <gtest/gtest.h>

namespace verdane::essai {
namespace {

TEST(FormatFichier, ChaqueFormatSeReconnaitASesOctets) {
    for (FormatDocument f : {FormatDocument::Rtf, FormatDocument::Doc, FormatDocument::Odt,
                             FormatDocument::Docx, FormatDocument::Pdf})
        EXPECT_EQ(FormatDesOctets(OctetsDuFormat(f)), f) << NomFormat(f);
}

TEST(FormatFichier, CeQuiNEnAQueLeNomNEstPasLeFormat) {
    // Nothing before the RTF group; the head of a compound file cut short; zips that are neither:
    // a spreadsheet, a text template, a zip cut in its header.
    std::string tableur = OctetsDuFormat(FormatDocument::Odt);
    tableur.replace(tableur.find(".text"), 5, ".sheet");
    std::string modele = OctetsDuFormat(FormatDocument::Odt);
    modele.insert(modele.find("content.xml") - 30, "-template");
    for (const std::string& octets : {std::string(), std::string("{\\rt"), std::string(" {\\rtf1}"),
                                      OctetsDuFormat(FormatDocument::Doc).substr(0, 7), tableur,
                                      modele, OctetsDuFormat(FormatDocument::Odt).substr(0, 34)})
        EXPECT_EQ(FormatDesOctets(octets), FormatDocument::Autre) << octets;
}

TEST(FormatFichier, LeFichierEstLuSurDisque) {
    test::DossierTemporaire d;
    const Texte doc = d.Ecrire("r.doc", OctetsDuFormat(FormatDocument::Doc));
    const Texte rtfSousNomDoc = d.Ecrire("s.doc", OctetsDuFormat(FormatDocument::Rtf));
    // A Word 2007 document names its main part in its directory, at its end.
    const Texte docx = d.Ecrire("r.docx", OctetsDuFormat(FormatDocument::Docx));
    EXPECT_TRUE(FichierAuFormat(doc, FormatDocument::Doc));
    EXPECT_FALSE(FichierAuFormat(rtfSousNomDoc, FormatDocument::Doc));
    EXPECT_TRUE(FichierAuFormat(docx, FormatDocument::Docx));
    EXPECT_FALSE(FichierAuFormat(d / "absent.pdf", FormatDocument::Pdf));
    EXPECT_FALSE(FichierAuFormat(d / "absent.lwp", FormatDocument::Lwp));
    EXPECT_TRUE(FichierAuFormat(rtfSousNomDoc, FormatDocument::Lwp)) << "not told apart";
}

} // namespace
} // namespace verdane::essai
