#pragma once

#include <QLineEdit>

#include <functional>
#include <string_view>

namespace kw {

enum class Sprache;

/// The field that finds a person by name as one types. It stands over the page's upper right corner while it is used.
class Suchfeld : public QLineEdit {
  public:
    /// `suchen` goes to the next person of that name, and says whether there is one; `zurück` gives the page the
    /// keyboard again.
    Suchfeld(QWidget &seite, std::function<bool(std::string_view)> suchen, std::function<void()> zurück);

    /// Shows the field, empty; when it is there already, goes on to the next person of the same name.
    void Öffnen(Sprache sprache);

  protected:
    bool event(QEvent *ereignis) override;
    void keyPressEvent(QKeyEvent *ereignis) override;
    bool focusNextPrevChild(bool nächstes) override;
    void focusOutEvent(QFocusEvent *ereignis) override;

  private:
    void Suchen();

    std::function<bool(std::string_view)> suchen_;
    std::function<void()> zurück_;
};

} // namespace kw
