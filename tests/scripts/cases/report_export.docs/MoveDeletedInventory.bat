@echo off
rem A site moves the export away here.
