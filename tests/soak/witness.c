// Loaded before the program of the soak. Answers how much of the heap is in use, keeps Qt's cache of
// pictures small, and runs the leak check if the program ends at once, without the end handlers that
// would run it.
#define _GNU_SOURCE
#include <dlfcn.h>
#include <fcntl.h>
#include <malloc.h>
#include <pthread.h>
#include <stddef.h>
#include <stdio.h>
#include <stdlib.h>
#include <unistd.h>

extern size_t __sanitizer_get_current_allocated_bytes(void) __attribute__((weak));
extern void __lsan_do_leak_check(void) __attribute__((weak));
extern void __sanitizer_print_memory_profile(size_t, size_t) __attribute__((weak));

// The question is one byte: 'm' for the bytes in use, 'p' also for a page in the sanitizers' log that
// says who holds them. The answer is one line.
static void *rispondi(void *senza)
{
    (void)senza;
    const int domande = open(getenv("SOAK_DOMANDE"), O_RDWR | O_CLOEXEC);
    const int risposte = open(getenv("SOAK_RISPOSTE"), O_RDWR | O_CLOEXEC);
    char domanda;
    while (domande >= 0 && read(domande, &domanda, 1) == 1) {
        if (domanda == 'p' && __sanitizer_print_memory_profile)
            __sanitizer_print_memory_profile(100, 1000);
        // Without the sanitizers the C library knows.
        dprintf(risposte, "%zu\n",
                __sanitizer_get_current_allocated_bytes
                    ? __sanitizer_get_current_allocated_bytes()
                    : mallinfo2().uordblks + mallinfo2().hblkhd);
    }
    return NULL;
}

__attribute__((constructor)) static void comincia(void)
{
    pthread_t filo;
    if (getenv("SOAK_DOMANDE") && getenv("SOAK_RISPOSTE") &&
        pthread_create(&filo, NULL, rispondi, NULL) == 0)
        pthread_detach(filo);
}

// QPixmapCache::setCacheLimit, QApplication::exec
extern void _ZN12QPixmapCache13setCacheLimitEi(int) __attribute__((weak));
int _ZN12QApplication4execEv(void);

// Qt keeps up to 10 MB of pictures of buttons and headings, and takes an hour to fill that; a growth
// of the program itself would be hidden by it.
int _ZN12QApplication4execEv(void)
{
    const int kilobyte = 512;
    if (_ZN12QPixmapCache13setCacheLimitEi)
        _ZN12QPixmapCache13setCacheLimitEi(kilobyte);
    int (*vera)(void) = (int (*)(void))dlsym(RTLD_NEXT, "_ZN12QApplication4execEv");
    return vera();
}

// Records how far the leak check came.
static void segna(const char *quanto)
{
    const char *nome = getenv("SOAK_SEGNI");
    const int file = nome ? open(nome, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644) : -1;
    if (file >= 0) {
        dprintf(file, "%s\n", quanto);
        close(file);
    }
}

void _Exit(int esito)
{
    if (__lsan_do_leak_check) {
        segna("begun");
        __lsan_do_leak_check();
        segna("ended");
    }
    fflush(NULL);
    _exit(esito);
}
