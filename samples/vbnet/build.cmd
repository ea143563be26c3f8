@echo off
rem 64 bit: Framework64; 32 bit: Framework and /platform:x86
%SystemRoot%\Microsoft.NET\Framework64\v4.0.30319\vbc.exe /target:winexe /platform:x64 /reference:System.dll,System.Drawing.dll,System.Windows.Forms.dll Pedido.vb
