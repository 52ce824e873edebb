#include <QtGlobal>

extern "C" Q_DECL_EXPORT int AnswerSeven();

int AnswerSeven()
{
    return 7;
}
