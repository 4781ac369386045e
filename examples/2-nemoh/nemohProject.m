% A Nemoh project of the barge, floating with 1.75 m draught:
%   sorvikPre -nemoh -f nemohProject.m
bem = {
    output = nemohProject     % made where the program is run
    body   = 1                % the settings of hydroBody1
    w0     = 1                % rad/s
    w1     = 2.4              % rad/s, below the first irregular frequency (3.07)
    nFreqs = 15
    dir0   = 0                % degrees
    dir1   = 180
    nDirs  = 5
}

environment = {
    waterDensity = 1025       % kg/m3
    gravity      = -9.81      % m/s2
    waterLevel   = 0          % m
    ground.level = -60
}

hydroBody1.bemInput = {
    meshName  = fineBarge.stl
    cogInMesh = [0, 0, -0.5]  % m, in the coordinates of the mesh file
    position  = [0, 0, -0.75] % where that point comes to
}
