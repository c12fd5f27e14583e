#ifndef PON_VISIBILITY_H
#define PON_VISIBILITY_H

/* The shared object is built with hidden visibility; what a public header declares between these two lines is exported.
 */
#define PON_EXPORTS_BEGIN _Pragma("GCC visibility push(default)")
#define PON_EXPORTS_END   _Pragma("GCC visibility pop")

#endif
