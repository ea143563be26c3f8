// What is built into the interpreter beside its core: win32ole, and the name that Windows has for UTF-8.
#include <ruby.h>
#include <ruby/encoding.h>

void Init_win32ole(void);

void Init_ext(void)
{
    rb_enc_alias("CP65001", "UTF-8");
    Init_win32ole();
    rb_provide("win32ole.so");
}
