#include "links/uno/BureauLibreOffice.h"

#include "links/uno/ProcessusOffice.h"
#include "links/uno/Veilleur.h"
#include "links/uno/Verrous.h"
#include "utils/Chaines.h"

#include <com/sun/star/beans/PropertyValue.hpp>
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/bridge/UnoUrlResolver.hpp>
#include <com/sun/star/bridge/XUnoUrlResolver.hpp>
#include <com/sun/star/connection/NoConnectException.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/frame/XController.hpp>
#include <com/sun/star/frame/XDesktop2.hpp>
#include <com/sun/star/frame/XFrame.hpp>
#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/lang/DisposedException.hpp>
#include <com/sun/star/lang/XComponent.hpp>
#include <com/sun/star/text/XText.hpp>
#include <com/sun/star/text/XTextRange.hpp>
#include <com/sun/star/text/XTextViewCursor.hpp>
#include <com/sun/star/text/XTextViewCursorSupplier.hpp>
#include <com/sun/star/uno/Exception.hpp>
#include <com/sun/star/uno/XComponentContext.hpp>
#include <com/sun/star/util/XCloseable.hpp>
#include <com/sun/star/util/XModifiable.hpp>
#include <cppuhelper/bootstrap.hxx>
#include <osl/file.hxx>
#include <rtl/ustring.hxx>

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <thread>
#include <unistd.h>

using namespace com::sun::star;
using com::sun::star::uno::Reference;
using com::sun::star::uno::UNO_QUERY;
using com::sun::star::uno::UNO_QUERY_THROW;

namespace verdane {

namespace {

rtl::OUString VersUno(const Texte& t) {
    return rtl::OUString(t.data(), static_cast<sal_Int32>(t.size()), RTL_TEXTENCODING_MS_1252);
}

Texte DeUno(const rtl::OUString& s) {
    const rtl::OString o = rtl::OUStringToOString(s, RTL_TEXTENCODING_MS_1252);
    return Texte(o.getStr(), static_cast<std::size_t>(o.getLength()));
}

// The path of this system that a file URL names; empty for any other URL.
std::string CheminDeUrl(const rtl::OUString& url) {
    rtl::OUString chemin;
    if (!url.startsWithIgnoreAsciiCase("file:") ||
        osl::FileBase::getSystemPathFromFileURL(url, chemin) != osl::FileBase::E_None)
        return {};
    return rtl::OUStringToOString(chemin, RTL_TEXTENCODING_UTF8).getStr();
}

// The UNO runtime of this program is set up from the office's own settings.
void PreparerAmorce() {
#ifdef VERDANE_LO_PROGRAMME
    const std::filesystem::path rc = std::filesystem::path(VERDANE_LO_PROGRAMME) / "fundamentalrc";
    ::setenv("URE_BOOTSTRAP", ("vnd.sun.star.pathname:" + rc.string()).c_str(), 0);
#endif
}

bool DoitEtreSansEcran(const OptionsOffice& o) {
    if (o.sansEcran) return true;
    if (o.officeVisible && !o.officeVisible()) return true;
    const char* x = std::getenv("DISPLAY");
    const char* w = std::getenv("WAYLAND_DISPLAY");
    if ((!x || !*x) && (!w || !*w)) return true;
#ifdef VERDANE_LO_PROGRAMME
    // An office installed without its window toolkits can only run headless.
    std::error_code ec;
    for (std::filesystem::directory_iterator it(VERDANE_LO_PROGRAMME, ec), fin; !ec && it != fin;
         it.increment(ec))
        if (it->path().filename().string().rfind("libvclplug_", 0) == 0) return false;
    return true;
#else
    return false;
#endif
}

// The filter names of the link as the office knows them: LibreOffice names the Word 97 to XP
// format "MS Word 97" whether the document is closed after or not.
Texte FiltreDeLOffice(const Texte& filtre) {
    if (filtre == "MS WinWord 97/2000/XP") return "MS Word 97";
    return filtre;
}

} // namespace

Texte UrlPourOffice(const Texte& url) {
    if (!CommenceParSansCasse(url, "file:")) return url;
    static const char* const kHex = "0123456789ABCDEF";
    Texte sure;
    for (unsigned char c : Cp1252VersUtf8(url)) {
        if (c >= 0x80 || c == '#' || c == '?') {
            sure += '%';
            sure += kHex[c >> 4];
            sure += kHex[c & 15];
        } else {
            sure += static_cast<char>(c);
        }
    }
    return sure;
}

struct BureauLibreOffice::Impl {
    explicit Impl(OptionsOffice o) : options(std::move(o)) {}

    OptionsOffice options;
    Reference<uno::XComponentContext> local;
    Reference<uno::XComponentContext> distant;
    Reference<frame::XDesktop2> bureau;
    Reference<lang::XComponent> document;
    ProcessusOffice processus;
    Veilleur veilleur{options.delaiOperationMs};
    int demarrages = 0;
    int compteurTubes = 0;
    bool sansEcran = true;
    // Documents shown on the screen of the office started here.
    int montres = 0;
    // Why the current document went with its office; empty while it hasn't.
    Texte perdu;

    [[noreturn]] void Echouer(const uno::Exception& e, const Texte& operation) {
        Texte description = DeUno(e.Message);
        if (veilleur.Expire()) {
            description = "LibreOffice ne répondait plus : il a été arrêté après " +
                          std::to_string(veilleur.DelaiMs() / 1000) + " s.";
            perdu = description;
            document.clear();
        } else if (Arrete()) {
            description = perdu;
        }
        if (description.empty()) description = "erreur sans description";
        throw ErreurEditeur(operation + " : " + description);
    }

    // True when the office went away under the call that just failed: its end is told in
    // `perdu`, and the document is gone with it.
    bool Arrete() {
        const bool mort = processus.Pid() != 0 && !processus.Vivant();
        if (!mort && !PontRompu()) return false;
        // The launcher ends right behind the office proper: its status tells how.
        using namespace std::chrono;
        const auto limite = steady_clock::now() + seconds(10);
        while (processus.Pid() > 0 && processus.Vivant() && steady_clock::now() < limite)
            std::this_thread::sleep_for(milliseconds(50));
        NoterPerte();
        return true;
    }

    // True when the connection to the office is gone: the office with it, or as good as.
    bool PontRompu() {
        if (!bureau.is()) return false;
        try {
            bureau->getFrames();
            return false;
        } catch (const lang::DisposedException&) {
            return true;
        } catch (const uno::Exception&) {
            return false;
        }
    }

    void NoterPerte() {
        const std::string& fin = processus.Fin();
        perdu = "LibreOffice s'est arrêté brutalement" + (fin.empty() ? "" : " (" + fin + ")") +
                " : le document en cours est perdu.";
        document.clear();
    }

    // A lock of the document at `url` left by an office of this program: by the one started
    // here when `aussiLeNotre`, else only by one that is gone.
    void RetirerVerrouDe(const rtl::OUString& url, bool aussiLeNotre) {
        const std::string chemin = CheminDeUrl(url);
        if (!chemin.empty())
            RetirerVerrou(chemin, aussiLeNotre ? processus.Profil() : std::string(),
                          PrefixeProfils());
    }

    bool Joindre(const Texte& tube) {
        try {
            Reference<bridge::XUnoUrlResolver> resolveur = bridge::UnoUrlResolver::create(local);
            Reference<uno::XInterface> objet = resolveur->resolve(
                VersUno("uno:pipe,name=" + tube + ";urp;StarOffice.ComponentContext"));
            distant.set(objet, UNO_QUERY_THROW);
            bureau = frame::Desktop::create(distant);
            return true;
        } catch (const uno::Exception&) {
            distant.clear();
            bureau.clear();
            return false;
        }
    }

    bool Vivant() {
        if (!bureau.is()) return false;
        if (processus.Pid() != 0 && !processus.Vivant()) return false;
        Veilleur::Operation operation(veilleur);
        try {
            bureau->getFrames()->getCount();
            return true;
        } catch (const uno::Exception&) {
            return false;
        }
    }

    void Oublier() {
        document.clear();
        bureau.clear();
        distant.clear();
    }

    bool Demarrer(Texte& erreur) {
        std::string choisi = options.executable;
        if (choisi.empty() && options.executableChoisi) choisi = options.executableChoisi();
        const std::string executable = TrouverExecutableOffice(choisi);
        if (executable.empty()) {
            erreur = "LibreOffice n'est pas installé sur ce système (programme soffice "
                     "introuvable).";
            return false;
        }
        // Private to this object: the process, the object's address and its count of starts.
        const Texte tube = "verdane_" + std::to_string(::getuid()) + "_" +
                           std::to_string(::getpid()) + "_" +
                           std::to_string(reinterpret_cast<std::uintptr_t>(this)) + "_" +
                           std::to_string(++compteurTubes);
        sansEcran = DoitEtreSansEcran(options);
        montres = 0;
        if (!processus.Demarrer(executable, tube, sansEcran, erreur)) return false;
        veilleur.Surveiller(processus.Pid());
        ++demarrages;
        using namespace std::chrono;
        const auto fin = steady_clock::now() + milliseconds(options.delaiDemarrageMs);
        while (steady_clock::now() < fin) {
            if (!processus.Vivant()) {
                processus.Arreter(0);
                erreur =
                    "LibreOffice (" + Utf8VersCp1252(executable) + ") s'est arrêté au démarrage.";
                return false;
            }
            if (Joindre(tube)) return true;
            std::this_thread::sleep_for(milliseconds(100));
        }
        processus.Arreter(0);
        erreur =
            "LibreOffice (" + Utf8VersCp1252(executable) + ") ne répond pas après son démarrage.";
        return false;
    }

    void Arreter() {
        if (processus.Pid() == 0) {
            Oublier();
            return;
        }
        // An office on screen that shows the user a document is theirs now: it stays.
        if (montres > 0 && Vivant()) {
            try {
                if (bureau->getFrames()->getCount() > 0) {
                    Oublier();
                    processus.Detacher();
                    return;
                }
            } catch (const uno::Exception&) {
            }
        }
        if (bureau.is()) {
            Veilleur::Operation operation(veilleur);
            try {
                bureau->terminate();
            } catch (const uno::Exception&) {
                // The bridge goes down with the office: expected.
            }
        }
        Oublier();
        processus.Arreter(15000);
    }

    Reference<frame::XModel> Modele() {
        Reference<frame::XModel> modele(document, UNO_QUERY);
        if (!modele.is()) throw ErreurEditeur("Aucun document n'est ouvert dans LibreOffice.");
        return modele;
    }
};

BureauLibreOffice::BureauLibreOffice(OptionsOffice options)
    : impl_(std::make_unique<Impl>(std::move(options))) {}

BureauLibreOffice::~BureauLibreOffice() {
    impl_->Arreter();
    Reference<lang::XComponent> local(impl_->local, UNO_QUERY);
    impl_->local.clear();
    if (local.is()) {
        try {
            local->dispose();
        } catch (const uno::Exception&) {
        }
    }
}

void BureauLibreOffice::Terminer() {
    impl_->Arreter();
}

int BureauLibreOffice::Demarrages() const {
    return impl_->demarrages;
}

pid_t BureauLibreOffice::PidOffice() const {
    const pid_t pid = impl_->processus.Pid();
    return pid > 0 ? pid : 0;
}

void BureauLibreOffice::PoserDelaiOperation(int delaiMs) {
    impl_->veilleur.PoserDelai(delaiMs);
}

std::string BureauLibreOffice::ProfilOffice() const {
    return impl_->processus.Profil();
}

bool BureauLibreOffice::SansEcran() const {
    return impl_->sansEcran;
}

Texte BureauLibreOffice::DocumentPerdu() {
    return impl_->perdu;
}

bool BureauLibreOffice::Connecter(Texte& erreur) {
    if (impl_->Vivant()) return true;
    // Gone since the last operation, with the document it held.
    if (impl_->document.is() && impl_->perdu.empty()) impl_->NoterPerte();
    // Not there yet, or gone: what was known of it is of no use.
    impl_->Oublier();
    if (impl_->processus.Pid() != 0) impl_->processus.Arreter(0);
    try {
        if (!impl_->local.is()) {
            PreparerAmorce();
            impl_->local = cppu::defaultBootstrap_InitialComponentContext();
        }
    } catch (const uno::Exception& e) {
        erreur = "Le support UNO de LibreOffice ne démarre pas : " + DeUno(e.Message);
        return false;
    }
    if (!impl_->options.tubePartage.empty() && impl_->Joindre(impl_->options.tubePartage))
        return true;
    return impl_->Demarrer(erreur);
}

int BureauLibreOffice::NombreCadres() {
    Veilleur::Operation operation(impl_->veilleur);
    try {
        if (!impl_->bureau.is()) return 0;
        return impl_->bureau->getFrames()->getCount();
    } catch (const uno::Exception& e) {
        impl_->Echouer(e, "Cadres de LibreOffice");
    }
}

void BureauLibreOffice::ChargerURL(const Texte& url, bool cache) {
    Veilleur::Operation operation(impl_->veilleur);
    try {
        if (!impl_->bureau.is()) throw ErreurEditeur("LibreOffice n'est pas joint.");
        uno::Sequence<beans::PropertyValue> arguments(1);
        arguments.getArray()[0].Name = "Hidden";
        arguments.getArray()[0].Value <<= cache;
        const rtl::OUString urlOffice = VersUno(UrlPourOffice(url));
        impl_->RetirerVerrouDe(urlOffice, false);
        Reference<lang::XComponent> composant =
            impl_->bureau->loadComponentFromURL(urlOffice, "_blank", 0, arguments);
        if (!composant.is())
            throw ErreurEditeur("LibreOffice ne peut pas ouvrir le document " + url + ".");
        impl_->document = composant;
        impl_->perdu.clear();
        if (!cache && !impl_->sansEcran) ++impl_->montres;
    } catch (const uno::Exception& e) {
        impl_->Echouer(e, "Ouverture de " + url);
    }
}

bool BureauLibreOffice::PrendreDocumentCourant() {
    Veilleur::Operation operation(impl_->veilleur);
    try {
        if (!impl_->bureau.is()) return false;
        Reference<lang::XComponent> courant = impl_->bureau->getCurrentComponent();
        if (courant.is()) {
            impl_->document = courant;
            return true;
        }
        // A headless office has no active frame: the document loaded last stands for it while
        // its frame is open.
        if (impl_->document.is()) {
            Reference<frame::XModel> modele(impl_->document, UNO_QUERY);
            if (modele.is() && modele->getCurrentController().is()) return true;
            impl_->document.clear();
        }
        Reference<container::XIndexAccess> cadres(impl_->bureau->getFrames(), UNO_QUERY);
        for (sal_Int32 i = cadres.is() ? cadres->getCount() - 1 : -1; i >= 0; --i) {
            Reference<frame::XFrame> cadre(cadres->getByIndex(i), UNO_QUERY);
            if (!cadre.is() || !cadre->getController().is()) continue;
            Reference<lang::XComponent> modele(cadre->getController()->getModel(), UNO_QUERY);
            if (modele.is()) {
                impl_->document = modele;
                return true;
            }
        }
        return false;
    } catch (const uno::Exception&) {
        impl_->document.clear();
        return false;
    }
}

bool BureauLibreOffice::LectureSeule() {
    Veilleur::Operation operation(impl_->veilleur);
    try {
        return Reference<frame::XStorable>(impl_->Modele(), UNO_QUERY_THROW)->isReadonly();
    } catch (const uno::Exception& e) {
        impl_->Echouer(e, "Lecture seule");
    }
}

bool BureauLibreOffice::AEmplacement() {
    Veilleur::Operation operation(impl_->veilleur);
    try {
        return Reference<frame::XStorable>(impl_->Modele(), UNO_QUERY_THROW)->hasLocation();
    } catch (const uno::Exception& e) {
        impl_->Echouer(e, "Emplacement du document");
    }
}

bool BureauLibreOffice::Modifie() {
    Veilleur::Operation operation(impl_->veilleur);
    try {
        return Reference<util::XModifiable>(impl_->Modele(), UNO_QUERY_THROW)->isModified();
    } catch (const uno::Exception& e) {
        impl_->Echouer(e, "Modification du document");
    }
}

void BureauLibreOffice::Stocker() {
    Veilleur::Operation operation(impl_->veilleur);
    try {
        Reference<frame::XStorable>(impl_->Modele(), UNO_QUERY_THROW)->store();
    } catch (const uno::Exception& e) {
        impl_->Echouer(e, "Enregistrement du document");
    }
}

void BureauLibreOffice::StockerSous(const Texte& url, const Texte& filtre, bool exporter) {
    Veilleur::Operation operation(impl_->veilleur);
    try {
        Reference<frame::XStorable> stockage(impl_->Modele(), UNO_QUERY_THROW);
        uno::Sequence<beans::PropertyValue> arguments(2);
        arguments.getArray()[0].Name = "FilterName";
        arguments.getArray()[0].Value <<= VersUno(FiltreDeLOffice(filtre));
        arguments.getArray()[1].Name = "Overwrite";
        arguments.getArray()[1].Value <<= true;
        const rtl::OUString cible = VersUno(UrlPourOffice(url));
        impl_->RetirerVerrouDe(cible, false);
        if (exporter)
            stockage->storeToURL(cible, arguments);
        else
            stockage->storeAsURL(cible, arguments);
    } catch (const uno::Exception& e) {
        impl_->Echouer(e, "Enregistrement sous " + url + " (" + filtre + ")");
    }
}

void BureauLibreOffice::FermerCadreActif() {
    Veilleur::Operation operation(impl_->veilleur);
    try {
        Reference<frame::XFrame> cadre;
        Reference<frame::XModel> modele(impl_->document, UNO_QUERY);
        if (modele.is() && modele->getCurrentController().is())
            cadre = modele->getCurrentController()->getFrame();
        if (!cadre.is()) {
            cadre = impl_->bureau->getActiveFrame();
            if (cadre.is() && cadre->getController().is())
                modele = cadre->getController()->getModel();
        }
        impl_->document.clear();
        if (!cadre.is()) return;
        const rtl::OUString url = modele.is() ? modele->getURL() : rtl::OUString();
        Reference<util::XCloseable> fermable(cadre, UNO_QUERY);
        if (fermable.is())
            fermable->close(true);
        else
            cadre->dispose();
        // A document left without a view is closed too: its lock goes with it.
        try {
            Reference<util::XCloseable> document(modele, UNO_QUERY);
            if (document.is() && !modele->getCurrentController().is()) document->close(true);
        } catch (const uno::Exception&) {
            // Closed with its frame already.
        }
        impl_->RetirerVerrouDe(url, true);
    } catch (const uno::Exception& e) {
        impl_->Echouer(e, "Fermeture du document");
    }
}

void BureauLibreOffice::InsererTexte(const Texte& texte, const Texte& police, int taille) {
    Veilleur::Operation operation(impl_->veilleur);
    try {
        Reference<text::XTextViewCursorSupplier> fournisseur(
            impl_->Modele()->getCurrentController(), UNO_QUERY_THROW);
        Reference<text::XTextViewCursor> curseur = fournisseur->getViewCursor();
        Reference<beans::XPropertySet> proprietes(curseur, UNO_QUERY_THROW);
        if (!police.empty())
            proprietes->setPropertyValue("CharFontName", uno::Any(VersUno(police)));
        if (taille > 0)
            proprietes->setPropertyValue("CharHeight", uno::Any(static_cast<float>(taille)));
        Reference<text::XTextRange> position(curseur, UNO_QUERY_THROW);
        curseur->getText()->insertString(position, VersUno(texte), false);
    } catch (const uno::Exception& e) {
        impl_->Echouer(e, "Insertion dans le document");
    }
}

void BureauLibreOffice::SelectionnerTout() {
    Veilleur::Operation operation(impl_->veilleur);
    try {
        Reference<text::XTextViewCursorSupplier> fournisseur(
            impl_->Modele()->getCurrentController(), UNO_QUERY_THROW);
        Reference<text::XTextViewCursor> curseur = fournisseur->getViewCursor();
        curseur->gotoStart(false);
        curseur->gotoEnd(true);
    } catch (const uno::Exception& e) {
        impl_->Echouer(e, "Sélection du texte");
    }
}

Texte BureauLibreOffice::Selection() {
    Veilleur::Operation operation(impl_->veilleur);
    try {
        Reference<text::XTextViewCursorSupplier> fournisseur(
            impl_->Modele()->getCurrentController(), UNO_QUERY_THROW);
        return DeUno(fournisseur->getViewCursor()->getString());
    } catch (const uno::Exception& e) {
        impl_->Echouer(e, "Lecture de la sélection");
    }
}

} // namespace verdane
