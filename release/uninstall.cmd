@echo off
rem Takes away what install.cmd registered: uninstall.cmd [/user] [/silent]. Ends with 0, or with 1 when that failed.
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
  call :remove "%native%\regsvr32.exe" win32
) else (
  call :remove "%native%\regsvr32.exe" win64
  if exist "%SystemRoot%\SysWOW64\regsvr32.exe" call :remove "%SystemRoot%\SysWOW64\regsvr32.exe" win32
)
if not "%silent%"=="yes" pause
exit /b %failed%

:remove
if "%scope%"=="user" ("%~1" /s /u /n /i:user "%~dp0%2\Vela.ocx") else ("%~1" /s /u "%~dp0%2\Vela.ocx")
if errorlevel 1 goto notdone
echo Removed for %scope%: %~dp0%2\Vela.ocx
exit /b 0
:notdone
echo NOT removed for %scope%: %~dp0%2\Vela.ocx
set failed=1
exit /b 1

:usage
echo uninstall.cmd [/user] [/silent]
exit /b 1
