#include "platform/qt/QtText.h"

#include "platform/CodePage.h"

#include <QFontDatabase>
#include <QFontMetrics>

namespace platform {

QString TextFromCodePage(std::string_view bytes)
{
    return QString::fromStdString(Utf8FromCodePage(bytes));
}

std::string CodePageFromText(const QString& text)
{
    return CodePageFromUtf8(text.toStdString());
}

QString WithoutShortcut(QString caption)
{
    return caption.replace(QLatin1Char('&'), QLatin1String("&&"));
}

QFont DialogFont()
{
    QFont font;
    const QString family = QStringLiteral("AR PL UMing TW");
    if (QFontDatabase::hasFamily(family))
        font.setFamily(family);
    // At 15 pixels an em the half-width cell is 8 wide already, and no dialog's label runs under the field beside it.
    int size = 15;
    font.setPixelSize(size);
    for (; size > 10 && QFontMetrics(font).height() > 16; --size)
        font.setPixelSize(size - 1);
    return font;
}

} // namespace platform
