// The end of a process that an exception would leave: at once, without the text of the exception's type. The library's
// own handler would bring a demangler of 46 KB into every host.
#include <cstdlib>

#ifdef __GLIBCXX__
namespace __gnu_cxx {
void __verbose_terminate_handler();
void __verbose_terminate_handler()
{
    std::abort();
}
} // namespace __gnu_cxx
#endif
