#include "platform/qt/TextFields.h"

#include "platform/qt/QtText.h"

#include <QRegularExpressionValidator>
#include <QSignalBlocker>

#include <algorithm>

namespace platform {
namespace {

bool IsControl(QChar character)
{
    return character.category() == QChar::Other_Control || character.category() == QChar::Separator_Line
        || character.category() == QChar::Separator_Paragraph;
}

QString Spelled(QString typed)
{
    typed.erase(std::remove_if(typed.begin(), typed.end(), IsControl), typed.end());
    return TextFromCodePage(CodePageFromText(typed));
}

} // namespace

std::string SpellTyped(QLineEdit& field)
{
    const QString typed = field.text();
    const QString spelled = Spelled(typed);
    if (spelled != typed) {
        const auto cursor = Spelled(typed.left(field.cursorPosition())).size();
        const QSignalBlocker quiet(field);
        field.setText(spelled);
        field.setCursorPosition(static_cast<int>(cursor));
    }
    return CodePageFromText(spelled);
}

void RefuseAllButDigits(QLineEdit& field)
{
    static const QRegularExpression digits(QStringLiteral("[0-9]*"));
    field.setValidator(new QRegularExpressionValidator(digits, &field));
    field.setInputMethodHints(Qt::ImhDigitsOnly);
}

} // namespace platform
