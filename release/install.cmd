@echo off
rem Registers Vela.ocx where this folder stands: install.cmd [/user] [/silent]
rem For every user (needs an administrator), or with /user for the user who runs it. Both bitnesses where the system has both.
rem Ends with 0, or with 1 when a registration failed.
setlocal
set scope=machine
set silent=no
:words
if "%~1"=="" goto start
if /i "%~1"=="/user" (set scope=user) else if /i "%~1"=="/silent" (set silent=yes) else goto usage
shift
goto words

:start
set failed=0
set native=%SystemRoot%\System32
if exist "%SystemRoot%\Sysnative\regsvr32.exe" set native=%SystemRoot%\Sysnative
set architecture=%PROCESSOR_ARCHITECTURE%
if defined PROCESSOR_ARCHITEW6432 set architecture=%PROCESSOR_ARCHITEW6432%
if /i "%architecture%"=="x86" (
  call :register "%native%\regsvr32.exe" win32
) else (
  call :register "%native%\regsvr32.exe" win64
  if exist "%SystemRoot%\SysWOW64\regsvr32.exe" call :register "%SystemRoot%\SysWOW64\regsvr32.exe" win32
)
if not "%silent%"=="yes" pause
exit /b %failed%

:register
if "%scope%"=="user" ("%~1" /s /n /i:user "%~dp0%2\Vela.ocx") else ("%~1" /s "%~dp0%2\Vela.ocx")
if errorlevel 1 goto notdone
echo Registered for %scope%: %~dp0%2\Vela.ocx
exit /b 0
:notdone
echo NOT registered for %scope%: %~dp0%2\Vela.ocx
if "%scope%"=="machine" echo Run this from a prompt opened as administrator, or use install.cmd /user.
set failed=1
exit /b 1

:usage
echo install.cmd [/user] [/silent]
exit /b 1
