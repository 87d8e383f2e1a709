#pragma once

#include "dialogs/Formular.h"
#include "qt/formulare/Formularlayout.h"

#include <QDialog>

#include <functional>
#include <map>
#include <memory>
#include <string>

class QInputMethodEvent;
class QKeyEvent;
class QTimer;

namespace kw {

/// Shows a form as a modal dialog and is its host: hands it every event, copies its state into the widgets behind
/// each of them.
class Formularfenster : public QDialog, public Formularwirt {
  public:
    /// `form` outlives the window.
    Formularfenster(Formular &form, QWidget *eltern);
    ~Formularfenster() override;

    /// Loads the form, shows it until it isn't open any more, unloads it.
    void Ausführen();

    void ZeitgeberStellen(std::string_view name, int ms) override;
    void FokusGeben(std::string_view steuerelement) override;

    /// Escape: presses the cancel button, or is the close box where there is none.
    void reject() override;

  protected:
    void closeEvent(QCloseEvent *ereignis) override;
    void changeEvent(QEvent *ereignis) override;
    bool eventFilter(QObject *objekt, QEvent *ereignis) override;

  private:
    void InBildschirmFassen();
    void TeileBauen();
    void KnöpfeOrdnen();
    void RahmenBauen();
    void TabfolgeSetzen();
    void Benennen();
    void RahmenErklären();
    void ListenwahlErklären();
    void Ereignis(const std::function<void()> &was);
    void Auffrischen();
    void FokusGewandert(QWidget *neu);
    std::string NameVon(const QObject *objekt) const;
    bool InListeBlättern(const std::string &name, QKeyEvent &taste);
    bool TasteSchlucken(const std::string &name, const QKeyEvent &taste) const;
    bool EingabeSchlucken(QObject &ziel, const std::string &name, const QInputMethodEvent &eingabe);

    Formular &form_;
    Formularteile teile_;
    std::map<std::string, std::unique_ptr<QTimer>, std::less<>> zeitgeber_;
    std::string fokus_; ///< the control that has the focus within the form, also while another window is active
};

} // namespace kw
