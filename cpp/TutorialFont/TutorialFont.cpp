#include "TutorialFont/TutorialFont.h"

#include "tool/LogLine.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QFontDatabase>

namespace {

constexpr const char *kSource = R"(..\..\tutorial\cpp\TutorialFont\TutorialFont.cpp)";

} // namespace

QFont TutorialFont::getFont()
{
    QFont font;
    font.setFamily(getFontFamily(getFontFamilyList()));
    return font;
}

QStringList TutorialFont::getFontFamilyList() const
{
    const QString subset = QStringLiteral("mplusmini-1c-regular");
    const QString anySans = QStringLiteral("sans-serif");
    if (m_locale == QLatin1String("zh_CN")) {
        return {subset, QStringLiteral("Microsoft Yahei"), QStringLiteral("PingFang SC"), anySans};
    }
    if (m_locale == QLatin1String("zh_TW")) {
        return {subset, QStringLiteral("Microsoft JhengHei"), QStringLiteral("PingFang TC"), anySans};
    }
    if (m_locale == QLatin1String("ko_KR")) {
        return {subset, QStringLiteral("Malgun Gothic"), QStringLiteral("Apple SD Gothic Neo"), anySans};
    }
    return {QStringLiteral("mplus-1c-regular")};
}

QString TutorialFont::getFontFamily(const QStringList &names)
{
    QStringList families;
    for (const QString &name : names) {
        const QStringList found = familiesOf(name);
        if (found.isEmpty()) {
            logWarning(kSource, "TutorialFont::getFontFamily", 48) << "families not found" << name;
        }
        families += found;
    }
    if (families.isEmpty()) {
        logWarning(kSource, "TutorialFont::getFontFamily", 53) << "familyList.size() == 0 for" << names;
        return {};
    }
    QString family = families.takeFirst();
    if (QFont::substitutes(family) != families) {
        QFont::insertSubstitutions(family, families);
    }
    return family;
}

QStringList TutorialFont::familiesOf(const QString &name)
{
    int id = m_fontIds.value(name, -1);
    if (id < 0) {
        const QString path =
            QStringLiteral("%1/fonts/%2.ttf").arg(QCoreApplication::applicationDirPath(), name);
        if (QFileInfo::exists(path)) {
            id = QFontDatabase::addApplicationFont(path);
        }
        if (id < 0) {
            return {name};
        }
        m_fontIds.insert(name, id);
    }
    return QFontDatabase::applicationFontFamilies(id);
}
