#pragma once

#include <QAbstractButton>
#include <QPointer>
#include <functional>
#include <vector>

namespace tavrelo::qt {

/// For each caption the place of the letter that presses its button with Alt, or -1: the first letter of a
/// word where one is free, else another letter. No letter is given twice. Figures are the toolbar's.
std::vector<int> MnemonicPlaces(const std::vector<QString>& captions);

/// While Alt is held, the buttons in view underline a letter and are pressed by it. At all other times their
/// captions are the program's own.
class Mnemonics : public QObject {
  public:
    /// Lists the buttons in view, in reading order. Those that cannot be pressed now keep their letters, so
    /// that the others have the same ones before and after.
    using Lister = std::function<std::vector<QAbstractButton*>()>;
    explicit Mnemonics(Lister buttons);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct Marked {
        QPointer<QAbstractButton> button;
        QString caption;  // without the mark
        QString marked;
    };
    void Show();
    void Hide();

    Lister m_buttons;
    std::vector<Marked> m_marked;
    bool m_is_held = false;
};

}  // namespace tavrelo::qt
