#include "base/UsersLanguage.h"

#include <QCoreApplication>
#include <QLocale>

namespace veldmark {

UsersLanguage::UsersLanguage()
{
    if (m_translator.load(QLocale(), QStringLiteral("veldmark"), QStringLiteral("_"),
                          QStringLiteral(":/i18n"))) {
        m_direction = QLocale(m_translator.language()).textDirection();
        QCoreApplication::installTranslator(&m_translator);
    }
}

} // namespace veldmark
