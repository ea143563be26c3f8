// Sleeps for an hour: one living process keeps a Wine prefix warm while the tests run.
#include <windows.h>

int main()
{
    Sleep(3600 * 1000);
    return 0;
}
