#pragma once

#include <QTranslator>

namespace veldmark {

// As long as it lives the program speaks the user's language, where there is a translation, and
// else English. Made behind the application object and before anything is said; the program has the
// translations from veldmark_translated() in its CMake.
class UsersLanguage {
public:
    UsersLanguage();
    // In which windows are laid out.
    Qt::LayoutDirection direction() const { return m_direction; }

private:
    QTranslator m_translator;
    Qt::LayoutDirection m_direction = Qt::LeftToRight;
};

} // namespace veldmark
