#pragma once

#include <QTranslator>

namespace veldmark {

// During its lifetime the program uses the user's language if there is a translation, otherwise
// English. Create it after the application object and before the first text. veldmark_translated()
// in CMake adds the translations to the program.
class UsersLanguage {
public:
    UsersLanguage();
    // The layout direction of windows.
    Qt::LayoutDirection direction() const { return m_direction; }

private:
    QTranslator m_translator;
    Qt::LayoutDirection m_direction = Qt::LeftToRight;
};

} // namespace veldmark
