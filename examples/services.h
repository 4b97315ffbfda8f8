#ifndef SERVICES_H
#define SERVICES_H

/* Hands the library memory and files of the C library, which its font functions need. */
void InstallServices(void);

#endif
