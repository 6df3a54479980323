#pragma once

#include "control.h"

#include <QLineEdit>

// A one-line text field. Typing raises Change, as does setting Text to something new.
// MaxLength 0 means no limit.
class TextBox : public QLineEdit, public Control
{
    Q_OBJECT

public:
    TextBox(QWidget* parent, const QString& name);

    QString Text() const { return text(); }
    void SetText(const QString& text);
    int MaxLength() const { return m_maxLength; }
    void SetMaxLength(int length);
    int SelStart() const;
    void SetSelStart(int start);
    int SelLength() const;
    void SetSelLength(int length);
    QString SelText() const { return selectedText(); }
    // A non-empty character shows that character for each one typed (a password field).
    void SetPasswordChar(const QString& character);
    bool Locked() const { return isReadOnly(); }
    void SetLocked(bool locked) { setReadOnly(locked); }

    Event<> Change;
    Event<int, int> KeyDown;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    int m_maxLength = 0;
};
