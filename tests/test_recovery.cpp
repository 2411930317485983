#include "editorfixture.h"
QTEST_MAIN(QObject)
