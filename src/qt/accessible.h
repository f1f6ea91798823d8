#pragma once

#include <QAccessibleWidget>

namespace tavrelo::qt {

/// A widget that tells readers of the screen more than the toolkit knows of it.
class TellsOfItself {
  public:
    virtual ~TellsOfItself() = default;
    /// Made once, when somebody asks; belongs to the toolkit.
    virtual QAccessibleInterface* NewAccessible() = 0;
};

/// From now on the toolkit asks widgets that tell of themselves.
void LetWidgetsTellOfThemselves();

/// A text to be read where it stands; an empty one is as good as not there.
class AccessibleText : public QAccessibleWidget {
  public:
    explicit AccessibleText(QWidget& widget) : QAccessibleWidget(&widget, QAccessible::StaticText) {}
    QAccessible::State state() const override;
};

/// What only the eye needs: a marker, a frame around what is in use.
class AccessibleOrnament : public QAccessibleWidget {
  public:
    explicit AccessibleOrnament(QWidget& widget) : QAccessibleWidget(&widget, QAccessible::Border) {}
    QAccessible::State state() const override;
};

}  // namespace tavrelo::qt
