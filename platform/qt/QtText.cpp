#include "platform/qt/QtText.h"

#include "platform/CodePage.h"

#include <QApplication>
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
    // The face's outlines are thin, and grey "l" and "1" look alike; its hand-made bitmaps do not, but they are for
    // displays whose pixels are the window's.
    if (qApp->devicePixelRatio() == 1) {
        font.setStyleStrategy(QFont::NoAntialias);
        font.setHintingPreference(QFont::PreferFullHinting); // every half-width cell as wide as its bitmap
    }
    const QString family = QStringLiteral("AR PL UMing TW");
    if (QFontDatabase::hasFamily(family))
        font.setFamily(family);
    // At 14 pixels an em the half-width cell is 7 wide: no dialog's label runs under the field beside it, and each
    // drop-down has room for its text and an arrow.
    int size = 14;
    font.setPixelSize(size);
    for (; size > 10 && QFontMetrics(font).height() > 16; --size)
        font.setPixelSize(size - 1);
    return font;
}

} // namespace platform
